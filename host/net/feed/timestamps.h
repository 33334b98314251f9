#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace xbr::host {

/// Reads a date and time of RFC 3339 (section 5.6), as Atom has them: any number of fraction digits, "T" and
/// "Z" in either case or a blank between, leap seconds. Answers seconds since 1970-01-01T00:00:00Z.
std::optional<std::int64_t> parseRfc3339(std::string_view text);

/// Reads a date and time of RFC 822 (section 5), as RSS has them, with years of two or four digits; without
/// seconds, without the day's name and with the zone names of RFC 822 as well.
std::optional<std::int64_t> parseRfc822(std::string_view text);

} // namespace xbr::host
