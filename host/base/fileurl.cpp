#include "host/base/fileurl.h"

#include "host/base/textscan.h"

#include <algorithm>

namespace xbr::host {

namespace {

bool startsWithIgnoringCase(std::string_view text, std::string_view lowerPrefix) {
    return text.size() >= lowerPrefix.size() &&
           std::equal(lowerPrefix.begin(), lowerPrefix.end(), text.begin(), [](char expected, char c) {
               return expected == (c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c);
           });
}

/// Removes "file:" and an authority that means this machine; the rest starts with '/' then.
bool removeSchemeAndAuthority(std::string_view& url) {
    if (!startsWithIgnoringCase(url, "file:/")) {
        return false;
    }
    url.remove_prefix(5);
    if (url.starts_with("//")) {
        url.remove_prefix(2);
        if (startsWithIgnoringCase(url, "localhost/")) {
            url.remove_prefix(9);
        }
    }
    return url.starts_with('/');
}

/// RFC 3986: unreserved characters, and what a path segment may hold besides.
bool isPlainInPath(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view("-._~/!$&'()*+,;=:@").find(c) != std::string_view::npos;
}

} // namespace

std::optional<std::string> localPath(std::string_view url) {
    if (!removeSchemeAndAuthority(url) || url.find_first_of("?#") != std::string_view::npos) {
        return std::nullopt;
    }
    return percentDecoded(url);
}

std::string fileUrl(std::string_view path) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    std::string url = "file://";
    for (const char c : path) {
        if (isPlainInPath(c)) {
            url += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            url += '%';
            url += kDigits[byte >> 4U];
            url += kDigits[byte & 15U];
        }
    }
    return url;
}

} // namespace xbr::host
