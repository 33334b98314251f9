#include "host/system/files/pendingfile.h"

#include "host/system/files/filestream.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/statvfs.h>
#include <vector>

namespace xbr::host {

namespace {

/// False, with the system's word for it, when the disk has no room for a file of that size: known before the
/// rest of the disk is filled with the beginning of it.
bool hasRoom(int target, std::int64_t size) {
    struct statvfs disk {};
    if (fstatvfs(target, &disk) == 0 && disk.f_bavail * disk.f_frsize < static_cast<std::uint64_t>(size)) {
        errno = ENOSPC;
        return false;
    }
    return true;
}

/// Lets the system copy, which shares the blocks on file systems that can (and is as quick as anything else
/// on those that cannot). Answers how far it came: not every pair of file systems can do it.
std::int64_t copyInSystem(int from, int to, const std::stop_token& stop) {
    static constexpr std::size_t kPiece = std::size_t{16}
                                          << 20U; // what a slow disk writes between two looks at `stop`
    std::int64_t copied = 0;
    for (;;) {
        if (stop.stop_requested()) {
            return copied;
        }
        const auto done = copy_file_range(from, nullptr, to, nullptr, kPiece, 0);
        if (done > 0) {
            copied += done;
        } else if (done == 0 || errno != EINTR) {
            return copied;
        }
    }
}

bool copyByHand(int from, int to, std::int64_t position, const std::stop_token& stop) {
    std::vector<char> buffer(std::size_t{1} << 20U);
    for (;;) {
        const auto came = readAt(from, buffer.data(), buffer.size(), position);
        if (stop.stop_requested() || !came || writeAt(to, buffer.data(), *came, position) != *came) {
            return false;
        }
        if (*came == 0) {
            return true;
        }
        position += static_cast<std::int64_t>(*came);
    }
}

} // namespace

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

bool copyFile(const std::string& from, const std::string& to, const std::stop_token& stop) {
    const FileDescriptor source = openRegularFile(from, O_RDONLY);
    auto target = source.isOpen() ? PendingFile::start(to) : std::nullopt;
    if (!target) {
        return false;
    }
    const auto before = identityOf(source.get());
    if (!before || !hasRoom(target->descriptor(), before->size)) {
        return false;
    }
    const auto position = copyInSystem(source.get(), target->descriptor(), stop);
    if (!copyByHand(source.get(), target->descriptor(), position, stop)) {
        return false;
    }
    errno = 0; // the system has no complaint when the file was changed
    return identityOf(source.get()) == before && target->commit();
}

} // namespace xbr::host
