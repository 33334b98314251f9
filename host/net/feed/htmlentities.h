#pragma once

#include <optional>
#include <string_view>

namespace xbr::host {

/// The character that a reference of HTML stands for, given what is between "&" and ";": a number ("#8217",
/// "#x2019") or one of the names of HTML 4 ("rsquo"). Nothing for any other.
std::optional<char32_t> htmlCharacter(std::string_view reference);

} // namespace xbr::host
