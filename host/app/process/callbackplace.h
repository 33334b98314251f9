#pragma once

#include "host/base/problem.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace xbr::host {

/// How long a URL may be, in bytes without the end of the line.
constexpr std::size_t kMaximumUrlSize = 8192;

// What is said on a connection, a line each: a URL is answered by `kTaken` or `kNotTaken`, and so is
// `kLinkBack` and a URL, which only a host takes that waits for a browser at that moment; the question
// `kWhoWaits` by `kWaits` and a time, or by `kNotTaken`.
constexpr std::string_view kWhoWaits = "?";
constexpr std::string_view kWaits = "waits ";
constexpr std::string_view kLinkBack = "back ";
constexpr std::string_view kTaken = "ok";
constexpr std::string_view kNotTaken = "no";

/// The folder in which running hosts listen: "xbrhost" in $XDG_RUNTIME_DIR, or "xbrhost-<user id>" in the
/// temporary folder.
std::string callbackFolder();

/// Makes the folder, or checks the one that is there: it has to be a real folder of this user that nobody
/// else may enter. Otherwise another user may have planted it. The words of a problem are a whole line.
Outcome<void> makePrivateFolder(const std::string& path);

/// True when the process at the other end of a local socket belongs to this user.
bool isOwnUser(int socket);

} // namespace xbr::host
