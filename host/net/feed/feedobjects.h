#pragma once

#include "framework/abi/feed.h"
#include "host/net/feed/feedrecord.h"

namespace xbr::host {

/// Hands a feed that was read across the border.
void giveFeed(FeedRecord record, IFeed** out);

} // namespace xbr::host
