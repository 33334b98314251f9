#include "host/system/folderscan.h"

#include <QString>

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;

/// Names of the file system are bytes; names in the archive are UTF-8.
std::string toUtf8(const std::string& name) {
    return QString::fromStdString(name).toStdString();
}

class Scan {
public:
    Scan(PackageProgress& progress, std::vector<PackageEntry>& entries)
        : m_progress(progress),
          m_entries(entries) {}

    Result folder(const fs::path& path, const std::string& prefix) {
        std::vector<std::string> files;
        std::vector<std::string> folders;
        if (!list(path, files, folders)) {
            return kUnexpected;
        }
        for (const auto& name : files) {
            if (!file(path / name, prefix + toUtf8(name))) {
                return kUnexpected;
            }
        }
        if (!m_progress.advance(prefix, 0)) {
            return kFalse;
        }
        for (const auto& name : folders) {
            if (const Result result = folder(path / name, prefix + toUtf8(name) + '/'); result != kOk) {
                return result;
            }
        }
        return kOk;
    }

private:
    static bool list(const fs::path& path, std::vector<std::string>& files,
                     std::vector<std::string>& folders) {
        std::error_code error;
        for (fs::directory_iterator entry(path, error), end; !error && entry != end; entry.increment(error)) {
            const auto type = entry->symlink_status(error).type();
            if (error || (type != fs::file_type::regular && type != fs::file_type::directory)) {
                return false;
            }
            auto& names = type == fs::file_type::regular ? files : folders;
            names.push_back(entry->path().filename().string());
        }
        std::sort(files.begin(), files.end());
        std::sort(folders.begin(), folders.end());
        return !error;
    }

    bool file(const fs::path& path, std::string name) {
        struct stat status {};
        if (lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) {
            return false;
        }
        m_entries.push_back({path.string(), std::move(name), status.st_size, status.st_mtim});
        return true;
    }

    PackageProgress& m_progress;
    std::vector<PackageEntry>& m_entries;
};

} // namespace

Result scanFolder(const std::string& folder, PackageProgress& progress, std::vector<PackageEntry>& entries) {
    return Scan(progress, entries).folder(folder, {});
}

} // namespace xbr::host
