#pragma once

#include "host/net/feed/feedrecord.h"

#include <QString>
#include <QUrl>

#include <optional>

namespace xbr::host {

/// Reads the XML of a feed, Atom 1.0 (RFC 4287), found at `location`. Nothing when it is no feed, malformed,
/// or larger than feeds are in any respect.
std::optional<FeedRecord> parseFeed(const QString& document, const QUrl& location);

} // namespace xbr::host
