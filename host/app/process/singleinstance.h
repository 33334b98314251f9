#pragma once

#include "framework/abi/filetype.h"
#include "framework/support/objects/object.h"
#include "host/base/problem.h"

#include <QLockFile>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace xbr::host {

/// Sees to it that a user has one window, however often the program is started.
class SingleInstance {
public:
    enum class Place {
        kFirst,    ///< this process may open the window; the place is held as long as this object lives
        kSecond,   ///< another process has the window, and shows it now with the files
        kNoAnswer, ///< another process has the window, but does not answer
    };

    SingleInstance() = default;
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    ~SingleInstance();

    /// Takes the place, or sends the files to who has it. A problem when the folder in which windows find
    /// each other cannot be used; its words are a whole line.
    Outcome<Place> take(const std::vector<std::string>& files);

private:
    std::unique_ptr<QLockFile> m_lock;
};

/// Takes what a second start of the program sends to the first: the wish to see the window, and songs. With
/// the file-type registry as long as this object is kept and `close` was not called.
class OpenHandler final : public Object<IFileHandler> {
public:
    /// `openFile` gets paths as bytes.
    explicit OpenHandler(std::function<void(const std::string& path)> openFile);

    /// Takes it out of the registry.
    void close();

    bool openUrl(Text url) noexcept override;

private:
    std::function<void(const std::string& path)> m_openFile;
};

} // namespace xbr::host
