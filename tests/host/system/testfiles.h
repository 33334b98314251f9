#pragma once

#include "framework/abi/filesystem.h"

#include <QTemporaryDir>

#include <filesystem>
#include <string>
#include <vector>

namespace xbr::host::tests {

/// A folder that goes with the test.
class TestFolder {
public:
    TestFolder();

    const std::filesystem::path& path() const { return m_path; }
    std::string url(const std::string& name) const;

private:
    QTemporaryDir m_folder;
    std::filesystem::path m_path;
};

void writeFile(const std::filesystem::path& path, const std::string& bytes);

/// Zeros that take no room on the disk.
void writeSparseFile(const std::filesystem::path& path, std::uint64_t size);
std::string readFile(const std::filesystem::path& path);

/// The names of everything in a folder, hidden files included.
std::vector<std::string> namesIn(const std::filesystem::path& folder);

/// Bytes that do not deflate; the same each time.
std::string noise(std::size_t size);

/// While it lives, no file of this process can grow beyond a size: a full disk.
class FileSizeLimit {
public:
    explicit FileSizeLimit(std::uint64_t bytes);
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit();

private:
    std::uint64_t m_before;
};

} // namespace xbr::host::tests
