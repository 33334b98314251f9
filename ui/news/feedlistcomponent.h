#pragma once

#include "framework/support/parts/component.h"

namespace brindlex {

/// The component "FeedList" of forms that show news. Parameter: 100 "feedList", an integer.
class FeedListComponent final : public xbr::Component {
public:
    FeedListComponent();
};

} // namespace brindlex
