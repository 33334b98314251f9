#pragma once

#include "host/app/session/frontend.h"

namespace xbr::host {

/// A front end that shows nothing and asks nobody.
struct FakeFront final : FrontEnd {
    Ref<IObject> makeDialog(HostSession&) override { return {}; }
    Ref<IObject> makeProgress(HostSession&) override { return {}; }
};

} // namespace xbr::host
