#pragma once

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

} // namespace xbr::host
