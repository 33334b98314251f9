#pragma once

#include "framework/abi/feed.h"

#include <string>

namespace brindlex {

/// When an entry was published, or else changed last, as the user's locale writes dates. The date of an entry
/// without any is 1 January 1900.
std::string feedDate(const xbr::IFeedEntry& entry);

} // namespace brindlex
