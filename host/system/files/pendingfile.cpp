#include "host/system/files/pendingfile.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>

namespace xbr::host {

std::optional<PendingFile> PendingFile::start(std::string path) {
    static std::atomic<unsigned> counter = 0; // songs are copied and archives written on threads of their own
    const auto slash = path.rfind('/');
    if (slash == std::string::npos || slash + 1 == path.size()) {
        return std::nullopt;
    }
    const std::string prefix = path.substr(0, slash + 1) + ".xbr-" + std::to_string(getpid()) + '-';
    for (;;) {
        std::string temporaryPath = prefix + std::to_string(++counter) + ".part";
        FileDescriptor file(
            ::open(temporaryPath.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0666));
        if (file.isOpen()) {
            return PendingFile(std::move(file), std::move(temporaryPath), std::move(path));
        }
        if (errno != EEXIST) {
            return std::nullopt;
        }
    }
}

PendingFile::~PendingFile() {
    if (!m_temporaryPath.empty()) {
        unlink(m_temporaryPath.c_str());
    }
}

bool PendingFile::commit() {
    // Closed first: some file systems report a full disk only then.
    if (!m_file.close() || std::rename(m_temporaryPath.c_str(), m_path.c_str()) != 0) {
        return false;
    }
    m_temporaryPath.clear();
    return true;
}

} // namespace xbr::host
