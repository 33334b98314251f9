#pragma once

#include "host/security/storeresult.h"

/// Set-up functions of libxbrsecurity for the host program. Modules never use them. All on the main thread.
namespace xbr::host {

/// Names who hears of the keyring (null: nobody); not kept.
__attribute__((visibility("default"))) void setStoreListener(StoreListener* listener);

/// True when the session bus accepts and does not say a word within a second: who connects to it then hangs.
__attribute__((visibility("default"))) bool isSessionBusSilent();

} // namespace xbr::host
