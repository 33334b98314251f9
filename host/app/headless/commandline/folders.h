#pragma once

#include "host/app/publishing/release.h"
#include "host/base/problem.h"

namespace xbr::host {

/// Puts the songs in them in the places of folders, in the order of their names; with those of the folders in
/// them when it is recursive. The artist of a folder is that of its songs. The words of a problem are a
/// sentence; a wish that makes no sense is told from a folder that cannot be used by the fault.
Outcome<void> expandFolders(ReleaseWish& wish, bool isRecursive);

} // namespace xbr::host
