#pragma once

#include "framework/abi/filestore.h"

#include <string>

namespace xbr::host {

/// The program's own folder below $XDG_CACHE_HOME (~/.cache when that is not set; XDG Base Directory
/// Specification), made when it is missing. Empty when there is none.
std::string cacheFolder();

/// Writes a file as a whole, for the user alone, with the parent folders that are missing.
bool replaceFile(const std::string& path, const void* bytes, std::uint64_t size);

/// The regular files of a folder; null when it cannot be read.
IFileList* listFiles(const std::string& path);

} // namespace xbr::host
