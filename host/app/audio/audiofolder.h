#pragma once

#include "host/base/problem.h"

#include <string>
#include <vector>

namespace xbr::host {

/// The extensions of files that are taken for songs, in lower case.
const std::vector<std::string>& audioExtensions();

/// The songs in a folder, in the order of their names; when it is recursive with those of the folders in it.
/// There is a bound, as somebody will name a whole disk.
Outcome<std::vector<std::string>> audioFilesIn(const std::string& folder, bool isRecursive);

} // namespace xbr::host
