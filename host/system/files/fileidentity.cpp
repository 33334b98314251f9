#include "host/system/files/fileidentity.h"

#include <sys/stat.h>

namespace xbr::host {

namespace {

std::optional<FileIdentity> toIdentity(bool isKnown, const struct stat& status) {
    if (!isKnown || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    return FileIdentity{status.st_dev, status.st_ino, status.st_size, status.st_mtim};
}

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

} // namespace xbr::host
