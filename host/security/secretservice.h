#pragma once

#include "host/security/storecall.h"

#include <string>
#include <string_view>

// The desktop's Secret Service. All of it may take long or hang: a StoreCall runs it.

namespace xbr::host {

/// A secret as the service gave it out.
struct FoundSecret {
    std::string userName;
    std::string password;
};

/// True when the service takes `text` as an attribute: UTF-8 without zero bytes.
bool isAttributeText(std::string_view text);

/// Connects to the session bus.
StoreResult connectToBus(StoreCall& call);

/// Stores a secret; one of the same target and user name is replaced. May ask the user to unlock.
StoreResult storeSecret(StoreCall& call, std::string_view target, std::string_view userName,
                        std::string_view password, std::string_view note);

/// Finds the secret of a target that was stored last. Of several from the same second, the service's unit of
/// time, it is any one. May ask the user to unlock.
StoreResult findSecret(StoreCall& call, std::string_view target, FoundSecret& found);

/// Removes all secrets of a target. May ask the user to unlock.
StoreResult removeSecrets(StoreCall& call, std::string_view target);

} // namespace xbr::host
