#pragma once

#include <QLockFile>

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
        kNoFolder, ///< the folder in which windows find each other cannot be used
    };

    SingleInstance() = default;
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;
    ~SingleInstance();

    /// Takes the place, or hands over to who has it. `error` tells more about kNoFolder.
    Place take(const std::vector<std::string>& files, std::string& error);

private:
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace xbr::host
