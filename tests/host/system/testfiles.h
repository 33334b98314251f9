#pragma once

#include "framework/abi/filesystem.h"
#include "tests/fixtures/testfolder.h"

#include <filesystem>
#include <string>
#include <vector>

namespace xbr::host::tests {

/// Zeros that take no room on the disk.
void writeSparseFile(const std::filesystem::path& path, std::uint64_t size);

/// The names of everything in a folder, hidden files included.
std::vector<std::string> namesIn(const std::filesystem::path& folder);

/// Bytes that do not deflate; the same each time.
std::string noise(std::size_t size);

} // namespace xbr::host::tests
