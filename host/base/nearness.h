#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace xbr::host {

/// The names that somebody may have meant who typed this, the nearest first, at most four; none when nothing
/// is near. Case does not matter.
std::vector<std::string> nearestTo(std::string_view typed, const std::vector<std::string>& names);

/// A text for comparing: without regard to case and to how many spaces there are.
std::string foldedText(std::string_view text);

} // namespace xbr::host
