#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace xbr::host {

/// The host that a URL names, for messages to the user; nothing when requests cannot be sent to it: another
/// scheme than http and https, malformed, or with a user name or password inside (a secret in a URL ends up
/// in logs; there are credentials for that).
std::optional<std::string> requestHost(std::string_view url);

} // namespace xbr::host
