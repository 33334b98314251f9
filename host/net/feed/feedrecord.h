#pragma once

#include "framework/abi/feed.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace xbr::host {

/// A link's attributes by their local names; "rel" and "href" are always there.
using FeedLink = std::vector<std::pair<std::string, std::string>>;

/// What an entry of a feed tells, in plain text.
struct FeedEntryRecord {
    std::string title;
    std::string summary;
    std::string content;
    std::optional<std::int64_t> published;
    std::optional<std::int64_t> updated;
    std::vector<FeedLink> links;
    std::vector<std::string> categories;
};

struct FeedRecord {
    std::string title;
    std::vector<FeedEntryRecord> entries;
};

/// Hands a feed that was read across the border.
void giveFeed(FeedRecord record, IFeed** out);

} // namespace xbr::host
