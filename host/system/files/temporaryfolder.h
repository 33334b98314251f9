#pragma once

#include <string>
#include <string_view>

namespace xbr::host {

/// The private temporary folder of this process, made on first use; its path without a trailing slash, empty
/// when none can be made. Only its owner may enter it. It goes with the process, through exit().
const std::string& temporaryFolder();

/// The file that marks a temporary folder as inhabited, for as long as its owner holds the lock on it.
constexpr std::string_view kFolderMark = "xbrhost.lock";

/// For the host program: removes a folder with everything in it, the mark last. When that is interrupted, the
/// next host still knows the rest for one of a dead host. Any thread.
[[gnu::visibility("default")]] void removeMarkedFolder(const std::string& folder) noexcept;

/// For the host program: removes the temporary folder with everything in it, if this process made one.
/// Happens by itself when the process ends through exit(); a next request for the folder makes a new one.
/// Main thread.
[[gnu::visibility("default")]] void removeTemporaryFolder() noexcept;

} // namespace xbr::host
