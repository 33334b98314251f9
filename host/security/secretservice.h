#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace xbr::host {

/// How an operation on the desktop's Secret Service ended.
enum class StoreResult {
    kDone,
    kNothing, ///< nothing of that target is stored
    kMissing, ///< no session bus, or no service on it
    kLocked,  ///< locked, and not unlocked by the user
    kFailed,  ///< the service reported another failure
};

/// A secret as the service gave it out.
struct FoundSecret {
    std::string userName;
    std::string_view password;          ///< valid as long as `keeper`
    std::shared_ptr<const void> keeper; ///< owns the password, in memory that is not paged out
};

/// True when the service takes `text` as an attribute: UTF-8 without zero bytes.
bool isAttributeText(std::string_view text);

/// Stores a secret; one of the same target and user name is replaced. May ask the user to unlock.
StoreResult storeSecret(std::string_view target, std::string_view userName, std::string_view password,
                        std::string_view note);

/// Finds the secret of a target that was stored last. Of several from the same second, the service's unit of
/// time, it is any one. May ask the user to unlock.
StoreResult findSecret(std::string_view target, FoundSecret& found);

/// Removes all secrets of a target. May ask the user to unlock.
StoreResult removeSecrets(std::string_view target);

} // namespace xbr::host
