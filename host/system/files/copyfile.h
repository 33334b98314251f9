#pragma once

#include <stop_token>
#include <string>

namespace xbr::host {

/// Copies a regular file, replacing an old one; the copy's permissions are those of a new file. False when
/// that fails, is stopped, or the file was written to meanwhile, so that the copy is of no state that it ever
/// had; no partial copy is left and an old file stays then. The target's folder must exist.
bool copyFile(const std::string& from, const std::string& to, const std::stop_token& stop);

} // namespace xbr::host
