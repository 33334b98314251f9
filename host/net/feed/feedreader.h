#pragma once

#include "framework/abi/feed.h"

namespace xbr::host {

/// Reads a feed; see IFeedReader.
Result readFeed(IStream& stream, Text location, Text mimeType, IFeed** out);

} // namespace xbr::host
