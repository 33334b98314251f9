#pragma once

#include <cstdint>
#include <string_view>

namespace xbr::host {

/// What the headers Cache-Control and Age say to a cache of the user's own (RFC 9111, sections 4.2 and 5.2).
struct CachePolicy {
    std::int64_t lifetime = -1; ///< seconds from now; -1: nothing is said
    bool mayBeKept = true;
};

CachePolicy cachePolicy(std::string_view cacheControl, std::string_view age);

} // namespace xbr::host
