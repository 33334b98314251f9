#pragma once

#include "framework/abi/download.h"
#include "framework/abi/feed.h"
#include "framework/abi/webservice.h"
#include "framework/support/objects/object.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace fakehost {

/// One request as it went out.
struct SentRequest {
    std::string method;
    std::string url;
    std::map<std::string, std::string> headers; ///< with "Authorization" when there were credentials
    std::string body;
};

struct FakeEntry {
    std::string title = {};
    std::string summary = {};
    std::string content = {};
    std::optional<std::int64_t> published = {};
    std::vector<std::map<std::string, std::string>> links = {};
    std::vector<std::string> categories = {};
};

/// What a server says about keeping a copy, with texts of its own.
struct FakeTerms {
    std::string entityTag = {};
    std::string lastModified = {};
    bool mayBeKept = true;
};

class FakeDownloadTask;
class FakeWebRequest;

/// Keeps every download that was started; tests let them end.
class FakeDownloads {
public:
    struct Started {
        std::string url;
        std::string entityTag = {};
        std::string lastModified = {};
    };

    /// Ends the running download of a URL, and runs what follows from it. False when none runs.
    bool complete(const std::string& url, const std::string& data, const FakeTerms& terms = {}) {
        return end(url, xbr::DownloadState::kComplete, &data, terms);
    }
    bool unchanged(const std::string& url) { return end(url, xbr::DownloadState::kComplete, nullptr, {}); }
    bool fail(const std::string& url) { return end(url, xbr::DownloadState::kFailed, nullptr, {}); }

    /// How many downloads run.
    std::size_t running() const { return m_running.size(); }

    std::vector<Started> started;

private:
    friend class FakeDownloadTask;
    bool end(const std::string& url, xbr::DownloadState state, const std::string* data,
             const FakeTerms& terms);

    std::vector<FakeDownloadTask*> m_running;
};

/// Keeps every request; tests answer them.
class FakeWebService final : public xbr::Object<xbr::IWebService, xbr::IDownloadService, xbr::IFeedReader> {
public:
    xbr::Result createCredentials(xbr::IWebCredentials** out) noexcept override;
    xbr::Result createRequest(xbr::IWebRequest** out) noexcept override;
    xbr::Result createTask(xbr::Text url, xbr::IDownloadTask** out) noexcept override;
    /// Any document without a feed of the test's is none, and so is one whose location does not come along.
    xbr::Result readFeed(xbr::IStream* stream, xbr::Text location, xbr::Text mimeType,
                         xbr::IFeed** out) noexcept override;

    /// Completes the request in flight with "onloadend" and runs what follows from it.
    void answer(std::int32_t status, const std::string& body = {});

    /// Sends "onprogress" for the request in flight.
    void progress(const xbr::Value& fraction);

    /// The host ends the request in flight: "onabort" follows.
    void abortInFlight();

    bool isInFlight() const { return m_inFlight != nullptr; }

    std::vector<SentRequest> sent;
    std::map<std::string, std::vector<FakeEntry>> documents; ///< the feeds that bytes stand for

private:
    friend class FakeWebRequest;
    FakeWebRequest* m_inFlight = nullptr;
};

} // namespace fakehost
