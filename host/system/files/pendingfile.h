#pragma once

#include "host/base/filedescriptor.h"

#include <optional>
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

} // namespace xbr::host
