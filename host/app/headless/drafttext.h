#pragma once

#include "host/app/publishing/releasedraft.h"

#include <cstddef>
#include <string>
#include <vector>

namespace xbr::host {

/// A release that would be sent, as lines for people: number `index` (from 0) of `count`. Texts from outside
/// are in there as they are.
std::vector<std::string> describeDraft(const ReleaseDraft& release, std::size_t index, std::size_t count);

} // namespace xbr::host
