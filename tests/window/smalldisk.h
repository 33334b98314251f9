#pragma once

#include <filesystem>

namespace xbr::host::tests {

/// A small file system of its own that can be filled up, where the system lets a process mount one.
class SmallDisk {
public:
    /// Mounts it, visible to this process only; to be called while the process has one thread.
    static void mountOne();

    /// Where temporary files belong; the usual place when nothing could be mounted.
    static std::filesystem::path place();
};

} // namespace xbr::host::tests
