#include "tests/e2e/fulldisk.h"

#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

namespace e2e {

namespace {

namespace fs = std::filesystem;

constexpr const char* kSize = "size=16m,mode=0700";

/// Where it is mounted in this process' own view of the file system, so that nothing is left of it, however
/// it ends.
constexpr const char* kPlace = "/mnt";

bool g_isMounted = false;

/// As root of a name space of its own, where that is allowed to everybody.
bool becomeRoot() {
    const auto user = getuid();
    const auto group = getgid();
    if (user == 0) {
        return unshare(CLONE_NEWNS) == 0;
    }
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
        return false;
    }
    std::ofstream("/proc/self/setgroups") << "deny";
    std::ofstream("/proc/self/uid_map") << "0 " << user << " 1";
    std::ofstream("/proc/self/gid_map") << "0 " << group << " 1";
    return getuid() == 0;
}

void limitFiles(rlim_t size) {
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = size == RLIM_INFINITY ? limit.rlim_max : size;
    setrlimit(RLIMIT_FSIZE, &limit);
}

} // namespace

void SmallDisk::mountOne() {
    g_isMounted = becomeRoot() && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                  mount("tmpfs", kPlace, "tmpfs", 0, kSize) == 0;
    std::printf("a full disk is %s\n", g_isMounted ? "a full file system" : "a limit to the size of files");
}

fs::path SmallDisk::place() {
    return g_isMounted ? fs::path(kPlace) : fs::temp_directory_path();
}

void SmallDisk::fill() {
    if (!g_isMounted) {
        m_isLimited = true;
        limitFiles(1000);
        return;
    }
    const int file = open((place() / "filler").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    const std::vector<char> bytes(4096);
    while (write(file, bytes.data(), bytes.size()) > 0) {
    }
    close(file);
}

void SmallDisk::clear() {
    if (m_isLimited) {
        m_isLimited = false;
        limitFiles(RLIM_INFINITY);
    }
    if (g_isMounted) {
        unlink((place() / "filler").c_str());
    }
}

} // namespace e2e
