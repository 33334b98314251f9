#include "host/app/process/callbackplace.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <sys/socket.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace xbr::host {

std::string callbackFolder() {
    // The environment is read on the main thread, and nothing in the host writes it.
    const char* runtime = std::getenv("XDG_RUNTIME_DIR"); // NOLINT(concurrency-mt-unsafe)
    std::error_code ignored;
    if (runtime && *runtime == '/' && std::filesystem::is_directory(runtime, ignored)) {
        return std::string(runtime) + "/xbrhost";
    }
    return QFile::encodeName(QDir::tempPath()).toStdString() + "/xbrhost-" + std::to_string(geteuid());
}

Outcome<void> makePrivateFolder(const std::string& path) {
    if (mkdir(path.c_str(), S_IRWXU) != 0 && errno != EEXIST) {
        const int error = errno;
        return Problem{Fault::kNotWritable,
                       path,
                       error,
                       "the folder '" + path + "' cannot be made: " + wordsOfErrno(error),
                       {},
                       {}};
    }
    struct stat status {};
    const bool isOurs = lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
                        status.st_uid == geteuid() && (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
    if (!isOurs) {
        return Problem{
            Fault::kNotWritable, path, 0, "the folder '" + path + "' is not private to this user", {}, {}};
    }
    return {};
}

bool isOwnUser(int socket) {
    ucred peer{};
    socklen_t size = sizeof(peer);
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

} // namespace xbr::host
