#pragma once

#include <string>
#include <vector>

namespace xbr::host {

/// Names of the track editor's parameters in words for the user: "album title, genre".
std::string describeFields(const std::vector<std::string>& fields);

} // namespace xbr::host
