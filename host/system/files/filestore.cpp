#include "host/system/files/filestore.h"

#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "host/base/fileurl.h"
#include "host/system/files/filestream.h"
#include "host/system/files/pendingfile.h"

#include <cerrno>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <vector>

namespace xbr::host {

namespace {

constexpr mode_t kUserOnly = 0700;

class FileList final : public Object<IFileList> {
public:
    void add(std::string url, const struct stat& status) {
        m_files.push_back({std::move(url), static_cast<std::uint64_t>(status.st_size), status.st_mtime});
    }

    std::int32_t count() const noexcept override { return static_cast<std::int32_t>(m_files.size()); }
    Text urlAt(std::int32_t index) const noexcept override { return toText(at(index).url); }
    std::uint64_t sizeAt(std::int32_t index) const noexcept override { return at(index).size; }
    std::int64_t modifiedAt(std::int32_t index) const noexcept override { return at(index).modified; }

private:
    struct File {
        std::string url;
        std::uint64_t size = 0;
        std::int64_t modified = 0;
    };

    const File& at(std::int32_t index) const noexcept {
        static const File kNone;
        return index >= 0 && index < count() ? m_files[static_cast<std::size_t>(index)] : kNone;
    }

    std::vector<File> m_files;
};

std::string environment(const char* name) {
    const char* value =
        std::getenv(name); // NOLINT(concurrency-mt-unsafe): nothing in the host sets variables
    return value ? value : std::string();
}

/// Makes a folder and its parents, those that are new for the user alone.
bool makeFolders(const std::string& path) {
    for (auto slash = path.find('/', 1);; slash = path.find('/', slash + 1)) {
        const std::string folder = path.substr(0, slash);
        if (mkdir(folder.c_str(), kUserOnly) != 0 && errno != EEXIST) {
            return false;
        }
        if (slash == std::string::npos) {
            break;
        }
    }
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

std::string cacheFolder() {
    std::string base = environment("XDG_CACHE_HOME");
    if (!base.starts_with('/')) { // relative paths in there are invalid and to be ignored
        const std::string home = environment("HOME");
        base = home.starts_with('/') ? home + "/.cache" : std::string();
    }
    const std::string folder = base + "/xbrhost";
    return !base.empty() && makeFolders(folder) ? folder : std::string();
}

bool replaceFile(const std::string& path, const void* bytes, std::uint64_t size) {
    if (!makeFolders(path.substr(0, path.rfind('/')))) {
        return false;
    }
    auto file = PendingFile::start(path);
    return file && fchmod(file->descriptor(), S_IRUSR | S_IWUSR) == 0 &&
           writeAt(file->descriptor(), bytes, size, 0) == size && file->commit();
}

IFileList* listFiles(const std::string& path) {
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(opendir(path.c_str()), &closedir);
    if (!folder) {
        return nullptr;
    }
    auto files = make<FileList>();
    // NOLINTNEXTLINE(concurrency-mt-unsafe): POSIX asks for safety with different streams
    while (const dirent* entry = readdir(folder.get())) {
        struct stat status {};
        if (fstatat(dirfd(folder.get()), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
            S_ISREG(status.st_mode)) {
            files->add(fileUrl(path + "/" + entry->d_name), status);
        }
    }
    return files.detach();
}

} // namespace xbr::host
