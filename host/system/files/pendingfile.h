#pragma once

#include "host/base/filedescriptor.h"

#include <optional>
#include <stop_token>
#include <string>
#include <utility>

namespace xbr::host {

/// A file that appears under its name only when it is complete. Until `commit` it has another name in the
/// same folder, and it goes with this object.
class PendingFile {
public:
    /// Starts the file; nothing when none can be created in that folder.
    static std::optional<PendingFile> start(std::string path);

    PendingFile(PendingFile&& other) noexcept { swap(other); }
    PendingFile& operator=(PendingFile&& other) noexcept {
        swap(other);
        return *this;
    }
    ~PendingFile();

    int descriptor() const noexcept { return m_file.get(); }

    /// Gives the file its name, replacing an old file. False when that fails; nothing is left then.
    bool commit();

private:
    PendingFile(FileDescriptor file, std::string temporaryPath, std::string path)
        : m_file(std::move(file)),
          m_temporaryPath(std::move(temporaryPath)),
          m_path(std::move(path)) {}

    void swap(PendingFile& other) noexcept {
        std::swap(m_file, other.m_file);
        m_temporaryPath.swap(other.m_temporaryPath);
        m_path.swap(other.m_path);
    }

    FileDescriptor m_file;
    std::string m_temporaryPath; ///< empty: nothing to remove
    std::string m_path;
};

/// Copies a regular file, replacing an old one; the copy's permissions are those of a new file. False when
/// that fails, is stopped, or the file was written to meanwhile, so that the copy is of no state that it ever
/// had; no partial copy is left and an old file stays then. The target's folder must exist.
bool copyFile(const std::string& from, const std::string& to, const std::stop_token& stop);

} // namespace xbr::host
