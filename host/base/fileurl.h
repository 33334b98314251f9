#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace xbr::host {

/// The path that a file URL names (RFC 8089: "file:///path", "file://localhost/path" or "file:/path"), as the
/// bytes that the file system has: names need not be UTF-8. Nothing for any other URL, for a query or a
/// fragment, and for percent-encoding that is malformed or hides a zero byte. A trailing slash is kept.
std::optional<std::string> localPath(std::string_view url);

/// The file URL of an absolute path.
std::string fileUrl(std::string_view path);

} // namespace xbr::host
