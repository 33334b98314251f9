#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace xbr {

/// Names and values in their order; names may repeat.
using Pairs = std::vector<std::pair<std::string, std::string>>;

/// Writes pairs as application/x-www-form-urlencoded (WHATWG URL Standard, section 5.2): letters, digits and
/// "*-._" stand for themselves, a space becomes "+", every other byte of the UTF-8 text "%XX".
std::string formEncode(const Pairs& pairs);

/// Reads such a text (section 5.1): "+" is a space, a "%" without two hexadecimal digits stands for itself.
Pairs formDecode(std::string_view text);

/// Percent-encodes a text for one segment of a path (RFC 3986, 3.3: pchar).
std::string encodePathSegment(std::string_view text);

/// Undoes percent-encoding; a "%" without two hexadecimal digits stands for itself.
std::string percentDecode(std::string_view text);

} // namespace xbr
