#include "host/system/files/temporaryfolder.h"

#include <QDir>
#include <QFile>

#include <cstdlib>
#include <filesystem>
#include <unistd.h>

namespace xbr::host {

namespace {

struct Folder {
    std::string path;
    pid_t owner = 0; ///< a child made by fork() has the path but must not remove the folder
};

Folder& folder() {
    static auto* const instance = new Folder; // outlives the handlers of exit()
    return *instance;
}

std::string makeFolder() {
    std::string path = QFile::encodeName(QDir::tempPath()).toStdString() + "/xbr-XXXXXX";
    return mkdtemp(path.data()) ? path : std::string();
}

} // namespace

const std::string& temporaryFolder() {
    if (folder().path.empty()) {
        [[maybe_unused]] static const int registered = std::atexit(&removeTemporaryFolder);
        folder() = {makeFolder(), getpid()};
    }
    return folder().path;
}

void removeTemporaryFolder() noexcept {
    if (!folder().path.empty() && folder().owner == getpid()) {
        std::error_code ignored; // nobody is left to be told; the system clears its folder some day
        std::filesystem::remove_all(folder().path, ignored);
        folder().path.clear();
    }
}

} // namespace xbr::host
