#pragma once

#include "tests/fixtures/testfolder.h"

#include <algorithm>
#include <random>
#include <vector>

namespace xbr::host::tests {

/// Zeros that take no room on the disk.
inline void writeSparseFile(const std::filesystem::path& path, std::uint64_t size) {
    writeFile(path, "");
    std::filesystem::resize_file(path, size);
}

/// The names of everything in a folder, hidden files included.
inline std::vector<std::string> namesIn(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// Bytes that do not deflate; the same each time.
inline std::string noise(std::size_t size) {
    std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same bytes in each run
    std::string bytes(size, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
    return bytes;
}

} // namespace xbr::host::tests
