#pragma once

#include "framework/abi/result.h"
#include "host/base/filedescriptor.h"
#include "host/system/files/backgroundwork.h"
#include "host/system/files/filestream.h"

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <span>
#include <string>
#include <vector>

namespace xbr::host {

/// A file that goes into an archive, as it was when it was added.
struct PackageEntry {
    std::string path;
    std::string name; ///< in the archive: relative, UTF-8, '/' between its parts
    FileIdentity identity;
    bool isDeflated = false; ///< otherwise stored
};

/// Notes every file below `folder`, sorted by name with the files of a folder before its subfolders, so that
/// the same contents make the same archive. Folders have no entries of their own.
///
/// kUnexpected when something cannot be read or is neither file nor folder: leaving a link or a device out
/// without a word would make an incomplete archive, and following one could lead anywhere. kFalse when
/// stopped. `entries` may be incomplete then.
Result scanFolder(const std::string& folder, PackageProgress& progress, const std::stop_token& stop,
                  std::vector<PackageEntry>& entries);

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
