#pragma once

#include "host/base/filedescriptor.h"
#include "host/system/files/filestream.h"

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <span>
#include <string>

namespace xbr::host {

/// A file that goes into an archive, as it was when it was added.
struct PackageEntry {
    std::string path;
    std::string name; ///< in the archive: relative, UTF-8, '/' between its parts
    FileIdentity identity;
    bool isDeflated = false; ///< otherwise stored
};

/// Reads an entry's file, and tells when it is not the file that was added. Several threads may read at once.
class PackageSource {
public:
    /// `entry` must outlive this object.
    explicit PackageSource(const PackageEntry& entry) : m_entry(entry) {}

    /// Fills `bytes` from `offset`; the first call opens the file. False when they cannot be read, or the
    /// file is another one already.
    bool read(std::int64_t offset, std::span<std::byte> bytes);

    /// After everything was read: whether nobody wrote to the file, replaced or removed it meanwhile.
    bool isUnchanged() const;

private:
    void open();

    const PackageEntry& m_entry;
    std::once_flag m_opening;
    FileDescriptor m_file;
};

} // namespace xbr::host
