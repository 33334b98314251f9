#include "tests/window/smalldisk.h"

#include <fstream>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace xbr::host::tests {

namespace {

/// Where it is mounted in this process' own view of the file system, so that nothing is left of it, however
/// it ends.
constexpr const char* kPlace = "/mnt";

bool g_isMounted = false;

/// As root of a name space of its own, where that is allowed to everybody.
bool becomeRoot() {
    const auto user = getuid();
    if (user == 0) {
        return unshare(CLONE_NEWNS) == 0;
    }
    const auto group = getgid();
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
        return false;
    }
    std::ofstream("/proc/self/setgroups") << "deny";
    std::ofstream("/proc/self/uid_map") << "0 " << user << " 1";
    std::ofstream("/proc/self/gid_map") << "0 " << group << " 1";
    return getuid() == 0;
}

} // namespace

void SmallDisk::mountOne() {
    g_isMounted = becomeRoot() && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                  mount("tmpfs", kPlace, "tmpfs", 0, "size=16m,mode=0700") == 0;
}

std::filesystem::path SmallDisk::place() {
    return g_isMounted ? kPlace : std::filesystem::temp_directory_path();
}

} // namespace xbr::host::tests
