#include "host/security/storeproblem.h"

namespace xbr::host {

std::string storeProblemText(StoreResult result) {
    static constexpr const char* kConsequence =
        " You stay signed in until the program ends and have to sign in again after that.";
    switch (result) {
    case StoreResult::kMissing:
        return std::string("The sign-in cannot be remembered: no password store (GNOME Keyring, KWallet or "
                           "KeePassXC) is running.") +
               kConsequence;
    case StoreResult::kLocked:
        return std::string("The sign-in cannot be remembered: the password store is locked.") + kConsequence;
    default:
        return std::string("The sign-in cannot be remembered: the password store did not accept it.") +
               kConsequence;
    }
}

std::string removeProblemText(StoreResult result) {
    return std::string("The sign-in could not be removed from the password store: ") +
           (result == StoreResult::kLocked ? "it is locked." : "it did not do so.") +
           " Unlock the store and sign out again.";
}

} // namespace xbr::host
