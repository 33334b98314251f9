#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace xbr::host {

/// True for well-formed UTF-8 (RFC 3629: no surrogates, nothing longer than it has to be).
bool isUtf8(std::string_view text);

/// True when a UTF-8 text holds a control character of ASCII or of U+0080 to U+009F.
bool hasControls(std::string_view text);

/// The text with a blank in place of each control character: what comes from outside must not steer a
/// terminal, and stays in one line.
std::string plainText(std::string_view text);

/// The first `width` characters of a UTF-8 text.
std::string_view firstCharacters(std::string_view text, std::size_t width);

/// Decodes percent-encoding (RFC 3986, 2.1); nothing when it is malformed or hides a zero byte.
std::optional<std::string> percentDecoded(std::string_view text);

} // namespace xbr::host
