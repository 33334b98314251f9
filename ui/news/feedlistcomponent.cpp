#include "ui/news/feedlistcomponent.h"

#include <limits>

namespace brindlex {

namespace {

enum FeedListTag : std::int32_t { kFeedList = 100 };

} // namespace

FeedListComponent::FeedListComponent() : Component("FeedList") {
    addParameter(xbr::ParameterKind::kInteger, kFeedList, "feedList", 0,
                 std::numeric_limits<std::int32_t>::max());
}

} // namespace brindlex
