#pragma once

#include "framework/abi/stream.h"
#include "framework/support/objects/object.h"
#include "host/base/filedescriptor.h"

#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <sys/types.h>

namespace xbr::host {

/// What tells one state of a regular file from another: a file that is written to, replaced or removed has a
/// different identity afterwards, or none.
struct FileIdentity {
    dev_t device;
    ino_t inode;
    std::int64_t size;
    timespec modified;

    bool operator==(const FileIdentity& other) const;
};

/// Nothing when it is not a regular file.
std::optional<FileIdentity> identityOf(int descriptor);

/// Of what stands at `path`; links are not followed.
std::optional<FileIdentity> identityAt(const std::string& path);

/// Opens a regular file; never waits on a pipe or a device. Not open when there is none or it may not be
/// opened so. `flags` as for open(2).
FileDescriptor openRegularFile(const std::string& path, int flags);

/// Reads `size` bytes at `offset`, fewer only at the end of the file; nothing when reading fails before the
/// first byte.
std::optional<std::size_t> readAt(int descriptor, void* buffer, std::size_t size, std::int64_t offset);

/// Writes all bytes at `offset`; answers how many went before the medium failed.
std::size_t writeAt(int descriptor, const void* buffer, std::size_t size, std::int64_t offset);

/// The position that a seek leads to; nothing when it lies before the start or out of range.
std::optional<std::int64_t> soughtPosition(std::int64_t offset, SeekOrigin origin, std::int64_t current,
                                           std::int64_t end);

enum class StreamAccess { kRead, kReadWrite };

/// A local file. It is not buffered: what `write` answered as done is with the system.
class FileStream final : public Object<IStream> {
public:
    /// `path` names a file that is written, for those who have to know when that fails.
    FileStream(FileDescriptor file, StreamAccess access, std::string path = {})
        : m_file(std::move(file)),
          m_access(access),
          m_path(std::move(path)) {}
    ~FileStream() override;

    /// Long reads tell the front end's indicator, and fail when the user has cancelled there.
    void showReading() { m_isShown = true; }

    Result read(void* buffer, std::uint64_t size, std::uint64_t* done) noexcept override;
    Result write(const void* buffer, std::uint64_t size, std::uint64_t* done) noexcept override;
    Result seek(std::int64_t offset, SeekOrigin origin, std::int64_t* position) noexcept override;

private:
    void writingFailed(int error);

    FileDescriptor m_file;
    StreamAccess m_access;
    std::string m_path;
    bool m_isShown = false;
    std::int64_t m_position = 0;
};

} // namespace xbr::host
