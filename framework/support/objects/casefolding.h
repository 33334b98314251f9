#pragma once

#include <string>
#include <string_view>

namespace xbr {

/// The text folded for comparison without case, as Unicode folds it.
std::string foldCase(std::string_view text);

} // namespace xbr
