#pragma once

#include "framework/abi/download.h"
#include "framework/abi/message.h"
#include "framework/support/objects/object.h"

#include <cstdint>
#include <string>
#include <vector>

namespace fakehost {

class FakeDownloadTask;

/// What a server says about keeping a copy, with texts of its own.
struct FakeTerms {
    std::string entityTag = {};
    std::string lastModified = {};
    bool mayBeKept = true;
};

/// Keeps every download that was started; tests let them end.
class FakeDownloads {
public:
    struct Started {
        std::string url;
        std::string entityTag = {};
        std::string lastModified = {};
    };

    xbr::Result createTask(const std::string& url, xbr::IDownloadTask** out);

    /// Ends the running download of a URL, and runs what follows from it. False when none runs.
    bool complete(const std::string& url, const std::string& data, const FakeTerms& terms = {});
    bool unchanged(const std::string& url, const FakeTerms& terms = {});
    bool fail(const std::string& url);

    /// How many downloads run.
    std::size_t running() const { return m_running.size(); }

    std::vector<Started> started;

private:
    friend class FakeDownloadTask;
    FakeDownloadTask* find(const std::string& url) const;

    std::vector<FakeDownloadTask*> m_running;
};

} // namespace fakehost
