#pragma once

#include <span>
#include <string>
#include <string_view>

// Small text helpers shared by the pages, the forms and the checks.
namespace sandbox {

// Text made safe for HTML and XML, in element content and in quoted attributes alike.
std::string escapeMarkup(std::string_view text);

// Everything but the unreserved characters of a URL as %XX.
std::string percentEncode(std::string_view text);

// Base64 with the standard alphabet and padding.
std::string toBase64(std::span<const unsigned char> bytes);

// `count` bytes of the system's randomness, as base64.
std::string randomText(std::size_t count);

std::string lowerAscii(std::string_view text);

// True for a name that means one file in its folder and nothing else: no separators of any system,
// no "." or "..", no control characters, not longer than a file name may be.
bool isPlainFileName(std::string_view name);

} // namespace sandbox
