#pragma once

#include <string>

namespace xbr::host {

/// The folder in which running hosts listen: "xbrhost" in $XDG_RUNTIME_DIR, or "xbrhost-<user id>" in the
/// temporary folder.
std::string callbackFolder();

/// Makes the folder, or checks the one that is there: it has to be a real folder of this user that nobody
/// else may enter. False, with the reason in plain words, when it is not: another user may have planted it.
bool makePrivateFolder(const std::string& path, std::string& error);

} // namespace xbr::host
