#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace xbr::host {

/// The names that somebody may have meant who typed this, the nearest first, at most four; none when nothing
/// is near. Case does not matter.
std::vector<std::string> nearestTo(std::string_view typed, const std::vector<std::string>& names);

/// The names that a word finds: the name itself, names that begin with it, those of which a word does, and
/// those that hold it anywhere.
std::vector<std::string> namesLike(std::string_view word, const std::vector<std::string>& names);

/// A text for comparing: without regard to case and to how many spaces there are.
std::string foldedText(std::string_view text);

} // namespace xbr::host
