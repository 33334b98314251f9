#include "host/system/files/temporaryfolder.h"

#include "host/system/files/fileproblem.h"

#include <cerrno>
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
    // As it is given: Qt would take another place without a word when this one is not there.
    const char* given =
        std::getenv("TMPDIR"); // NOLINT(concurrency-mt-unsafe): nothing in the host sets variables
    const std::string place = given && *given ? given : "/tmp";
    std::string path = place + "/xbr-XXXXXX";
    if (mkdtemp(path.data())) {
        return path;
    }
    noteFileProblem({Fault::kNoTemporaryFolder, place, errno, wordsOfErrno(errno), {}, {}});
    return {};
}

} // namespace

void removeMarkedFolder(const std::string& folder) noexcept {
    namespace fs = std::filesystem;
    std::error_code failed;
    std::error_code unread;
    const fs::path mark = fs::path(folder) / kFolderMark;
    for (fs::directory_iterator entry(folder, unread), end; !unread && entry != end;
         entry.increment(unread)) {
        if (entry->path() != mark) {
            std::error_code error;
            fs::remove_all(entry->path(), error);
            failed = error ? error : failed;
        }
    }
    if (!failed && !unread) {
        fs::remove(mark, failed);
        fs::remove(folder, failed);
    }
}

const std::string& temporaryFolder() {
    if (folder().path.empty()) {
        [[maybe_unused]] static const int registered = std::atexit(&removeTemporaryFolder);
        folder() = {makeFolder(), getpid()};
    }
    return folder().path;
}

void removeTemporaryFolder() noexcept {
    if (!folder().path.empty() && folder().owner == getpid()) {
        removeMarkedFolder(folder().path); // nobody is left to be told; the system clears its folder some day
        folder().path.clear();
    }
}

} // namespace xbr::host
