#pragma once

#include <string>

namespace xbr::host {

/// The private temporary folder of this process, made on first use; its path without a trailing slash, empty
/// when none can be made. Only its owner may enter it. It goes with the process, through exit().
const std::string& temporaryFolder();

/// For the host program: removes the temporary folder with everything in it, if this process made one.
/// Happens by itself when the process ends through exit(); a next request for the folder makes a new one.
/// Main thread.
[[gnu::visibility("default")]] void removeTemporaryFolder() noexcept;

} // namespace xbr::host
