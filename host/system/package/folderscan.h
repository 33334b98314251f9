#pragma once

#include "framework/abi/result.h"
#include "host/system/files/backgroundwork.h"
#include "host/system/package/packageentries.h"

#include <string>
#include <vector>

namespace xbr::host {

/// Notes every file below `folder`, sorted by name with the files of a folder before its subfolders, so that
/// the same contents make the same archive. Folders have no entries of their own.
///
/// kUnexpected when something cannot be read or is neither file nor folder: leaving a link or a device out
/// without a word would make an incomplete archive, and following one could lead anywhere. kFalse when
/// stopped. `entries` may be incomplete then.
Result scanFolder(const std::string& folder, PackageProgress& progress, const std::stop_token& stop,
                  std::vector<PackageEntry>& entries);

} // namespace xbr::host
