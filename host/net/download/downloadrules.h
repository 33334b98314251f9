#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace xbr::host {

enum class DownloadSource {
    kNone, ///< not a URL that documents are taken from
    kWeb,
    kFile, ///< the file system: files, and resources of modules
};

DownloadSource downloadSource(std::string_view url);

/// Where an answer of `from` sends us (RFC 9110, section 10.2.2); nothing when that is not to be followed:
/// out of the web, from https to http, or to a place that wants a user name.
std::optional<std::string> redirectTarget(std::string_view from, std::string_view location);

/// What the headers Cache-Control and Age say to a cache of the user's own (RFC 9111, sections 4.2 and 5.2).
struct CachePolicy {
    std::int64_t lifetime = -1; ///< seconds from now; -1: nothing is said
    bool mayBeKept = true;
};

CachePolicy cachePolicy(std::string_view cacheControl, std::string_view age);

} // namespace xbr::host
