#include "module/callbackhandler.h"

#include "client/manager.h"
#include "framework/support/objects/text.h"

namespace brindlex {

CallbackHandler& CallbackHandler::instance() {
    static const auto handler = xbr::make<CallbackHandler>();
    return *handler;
}

bool CallbackHandler::openUrl(xbr::Text url) noexcept {
    const xbr::Url location(xbr::view(url));
    if (location.protocol() != "brindlex") {
        return false;
    }
    if (Manager* manager = Manager::current()) {
        manager->client().handleRedirect(location);
    }
    return true;
}

} // namespace brindlex
