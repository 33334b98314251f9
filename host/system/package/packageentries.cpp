#include "host/system/package/packageentries.h"

#include "host/system/files/filestream.h"

#include <QString>

#include <algorithm>
#include <fcntl.h>
#include <filesystem>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;

/// Names of the file system are bytes; names in the archive are UTF-8.
std::string toUtf8(const std::string& name) {
    return QString::fromStdString(name).toStdString();
}

class Scan {
public:
    Scan(PackageProgress& progress, const std::stop_token& stop, std::vector<PackageEntry>& entries)
        : m_progress(progress),
          m_stop(stop),
          m_entries(entries) {}

    /// False when something cannot be taken, or when stopped.
    bool folder(const fs::path& path, const std::string& prefix) {
        m_progress.start(prefix);
        std::vector<std::string> files;
        std::vector<std::string> folders;
        return list(path, files, folders) &&
               std::all_of(files.begin(), files.end(),
                           [&](const auto& name) { return file(path / name, prefix + toUtf8(name)); }) &&
               std::all_of(folders.begin(), folders.end(), [&](const auto& name) {
                   return folder(path / name, prefix + toUtf8(name) + '/');
               });
    }

private:
    bool list(const fs::path& path, std::vector<std::string>& files, std::vector<std::string>& folders) {
        std::error_code error;
        for (fs::directory_iterator entry(path, error), end; !error && entry != end; entry.increment(error)) {
            const auto type = entry->symlink_status(error).type();
            const bool isKnown = type == fs::file_type::regular || type == fs::file_type::directory;
            if (error || !isKnown || m_stop.stop_requested()) {
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
        const auto identity = identityAt(path.string());
        if (!identity || m_stop.stop_requested()) {
            return false;
        }
        m_entries.push_back({path.string(), std::move(name), *identity});
        return true;
    }

    PackageProgress& m_progress;
    const std::stop_token& m_stop;
    std::vector<PackageEntry>& m_entries;
};

} // namespace

Result scanFolder(const std::string& folder, PackageProgress& progress, const std::stop_token& stop,
                  std::vector<PackageEntry>& entries) {
    if (Scan(progress, stop, entries).folder(folder, {})) {
        return kOk;
    }
    return stop.stop_requested() ? kFalse : kUnexpected;
}

void PackageSource::open() {
    m_file = openRegularFile(m_entry.path, O_RDONLY | O_NOFOLLOW);
    if (m_file.isOpen() && identityOf(m_file.get()) != m_entry.identity) {
        m_file.close();
    }
}

bool PackageSource::read(std::int64_t offset, std::span<std::byte> bytes) {
    std::call_once(m_opening, [this] { open(); });
    return m_file.isOpen() && readAt(m_file.get(), bytes.data(), bytes.size(), offset) == bytes.size();
}

bool PackageSource::isUnchanged() const {
    // Both are asked: an open file lives on after it was replaced or removed.
    return m_file.isOpen() && identityOf(m_file.get()) == m_entry.identity &&
           identityAt(m_entry.path) == m_entry.identity;
}

} // namespace xbr::host
