#include "host/system/files/filestream.h"

#include "host/system/files/backgroundwork.h"
#include "host/system/files/fileproblem.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace xbr::host {

namespace {

std::optional<FileIdentity> toIdentity(bool isKnown, const struct stat& status) {
    if (!isKnown || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    return FileIdentity{status.st_dev, status.st_ino, status.st_size, status.st_mtim};
}

/// Who reads pieces of this size reads a whole song or archive.
constexpr std::uint64_t kLongRead = std::uint64_t{256} << 10U;

} // namespace

bool FileIdentity::operator==(const FileIdentity& other) const {
    return device == other.device && inode == other.inode && size == other.size &&
           modified.tv_sec == other.modified.tv_sec && modified.tv_nsec == other.modified.tv_nsec;
}

std::optional<FileIdentity> identityOf(int descriptor) {
    struct stat status {};
    return toIdentity(fstat(descriptor, &status) == 0, status);
}

std::optional<FileIdentity> identityAt(const std::string& path) {
    struct stat status {};
    return toIdentity(lstat(path.c_str(), &status) == 0, status);
}

FileDescriptor openRegularFile(const std::string& path, int flags) {
    FileDescriptor file(::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666));
    struct stat status {};
    if (file.isOpen() && (fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))) {
        file.close();
    }
    return file;
}

std::optional<std::size_t> readAt(int descriptor, void* buffer, std::size_t size, std::int64_t offset) {
    std::size_t done = 0;
    while (done < size) {
        const auto came = pread(descriptor, static_cast<char*>(buffer) + done, size - done,
                                offset + static_cast<std::int64_t>(done));
        if (came > 0) {
            done += static_cast<std::size_t>(came);
        } else if (came == 0) {
            break;
        } else if (errno != EINTR) {
            return done > 0 ? std::optional(done) : std::nullopt;
        }
    }
    return done;
}

std::size_t writeAt(int descriptor, const void* buffer, std::size_t size, std::int64_t offset) {
    std::size_t done = 0;
    while (done < size) {
        const auto went = pwrite(descriptor, static_cast<const char*>(buffer) + done, size - done,
                                 offset + static_cast<std::int64_t>(done));
        if (went > 0) {
            done += static_cast<std::size_t>(went);
        } else if (went == 0 || errno != EINTR) {
            break;
        }
    }
    return done;
}

std::optional<std::int64_t> soughtPosition(std::int64_t offset, SeekOrigin origin, std::int64_t current,
                                           std::int64_t end) {
    std::int64_t base = 0;
    switch (origin) {
    case SeekOrigin::kStart:
        break;
    case SeekOrigin::kCurrent:
        base = current;
        break;
    case SeekOrigin::kEnd:
        base = end;
        break;
    default:
        return std::nullopt;
    }
    std::int64_t position = 0;
    const bool isOutside = __builtin_add_overflow(base, offset, &position) || position < 0;
    return isOutside ? std::nullopt : std::optional(position);
}

FileStream::~FileStream() {
    // Some file systems report a full disk only now.
    if (!m_file.close() && m_access == StreamAccess::kReadWrite) {
        writingFailed(errno);
    }
}

void FileStream::writingFailed(int error) {
    noteFileProblem(fileProblem(m_path, error, Fault::kNotWritable));
    noteIncompleteFile(m_path);
}

Result FileStream::read(void* buffer, std::uint64_t size, std::uint64_t* done) noexcept {
    *done = 0;
    if (m_isShown && size >= kLongRead && !keepIndicatorAlive()) {
        return kUnexpected; // what was prepared is not wanted any more
    }
    const auto came = readAt(m_file.get(), buffer, size, m_position);
    *done = came.value_or(0);
    m_position += static_cast<std::int64_t>(*done);
    return came ? kOk : kUnexpected;
}

Result FileStream::write(const void* buffer, std::uint64_t size, std::uint64_t* done) noexcept {
    *done = 0;
    if (m_access == StreamAccess::kRead) {
        return kNotImplemented;
    }
    *done = writeAt(m_file.get(), buffer, size, m_position);
    m_position += static_cast<std::int64_t>(*done);
    if (*done != size) {
        writingFailed(errno);
    }
    return *done == size ? kOk : kUnexpected;
}

Result FileStream::seek(std::int64_t offset, SeekOrigin origin, std::int64_t* position) noexcept {
    struct stat status {};
    if (origin == SeekOrigin::kEnd && fstat(m_file.get(), &status) != 0) {
        return kUnexpected;
    }
    const auto sought = soughtPosition(offset, origin, m_position, status.st_size);
    if (!sought) {
        return kInvalidArgument;
    }
    m_position = *sought;
    if (position) {
        *position = m_position;
    }
    return kOk;
}

} // namespace xbr::host
