#pragma once

#include "framework/abi/feed.h"
#include "framework/support/objects/object.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace fakehost {

struct FakeEntry {
    std::string title = {};
    std::string summary = {};
    std::string content = {};
    std::optional<std::int64_t> published = {};
    std::vector<std::map<std::string, std::string>> links = {};
    std::vector<std::string> categories = {};
};

/// Reads "documents" whose bytes are keys of feeds that the test has put here. Any other is no feed, and so
/// is one whose location does not come along.
class FakeFeeds {
public:
    xbr::Result readFeed(xbr::IStream& stream, const std::string& location, xbr::IFeed** out);

    std::map<std::string, std::vector<FakeEntry>> documents;
};

} // namespace fakehost
