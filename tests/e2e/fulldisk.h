#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace e2e {

/// A small file system of its own that can be filled up, where the system lets a process mount one; otherwise
/// a limit to the size of files, which writers meet in the same way.
class SmallDisk {
public:
    /// Mounts it, visible to this process only; to be called while the process has one thread.
    static void mountOne();

    /// Where temporary files belong; the usual place when nothing could be mounted.
    static std::filesystem::path place();

    /// From now on writing fails.
    void fill();
    void clear();
    ~SmallDisk() { clear(); }

private:
    bool m_isLimited = false;
};

} // namespace e2e
