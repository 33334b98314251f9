#pragma once

#include "framework/abi/result.h"
#include "host/base/problem.h"
#include "host/system/files/backgroundwork.h"
#include "host/system/package/packageentries.h"

#include <string>
#include <vector>

namespace xbr::host {

/// Writes a ZIP archive of `entries` in their order, deflating all of them (what does not shrink, such as
/// FLAC and MP3, costs next to nothing more), or storing all when `isCompressed` is false. It appears at
/// `path` when all of it is written; until then, and after a failure, nothing is there. Runs on any thread.
///
/// kUnexpected when reading or writing failed, a file is not the one that was added, or there are no entries:
/// `problem` says which; kFalse when stopped.
Result writeArchive(const std::string& path, std::vector<PackageEntry> entries, bool isCompressed,
                    PackageProgress& progress, const std::stop_token& stop, Problem& problem);

} // namespace xbr::host
