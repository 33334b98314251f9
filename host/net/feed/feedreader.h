#pragma once

#include "framework/abi/feed.h"

#include <optional>
#include <string>
#include <string_view>

namespace xbr::host {

/// Reads a feed; see IFeedReader.
Result readFeed(IStream& stream, Text location, Text mimeType, IFeed** out);

/// The XML document as UTF-8, without its declaration. The encoding is told by a byte order mark, else by the
/// parameter "charset" of the media type (RFC 7303, section 3), else by the declaration, and is UTF-8 or
/// UTF-16 otherwise. Nothing when the encoding is unknown or the bytes are not of it.
std::optional<std::string> utf8Document(std::string_view bytes, std::string_view mimeType);

} // namespace xbr::host
