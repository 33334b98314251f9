#pragma once

#include <cstdint>

// What the host program hears of the keyring; kept apart from GLib's headers.

namespace xbr::host {

enum class StoreOperation : std::uint8_t { kAdd, kFind, kRemove };

/// How an operation on the desktop's Secret Service ended.
enum class StoreResult : std::uint8_t {
    kDone,
    kNothing, ///< nothing of that target is stored
    kNoStore, ///< no session bus that can be reached, or no service on it
    kLocked,  ///< locked, and not unlocked by the user
    kSilent,  ///< it did not answer in time, or with a fault of its own
};

/// Hears of operations. Called on the main thread from within ICredentialManager's methods: a module is on
/// the stack, and does not expect to be called.
class StoreListener {
public:
    /// An operation goes on. Called again and again, some dozen times a second, so that the window can be
    /// kept alive in here. `isForUser`: the desktop asks for the keyring's password. False gives the
    /// operation up.
    virtual bool storeWaits(bool isForUser) = 0;

    /// Each operation's end.
    virtual void storeAnswered(StoreOperation operation, StoreResult result) = 0;

protected:
    ~StoreListener() = default;
};

} // namespace xbr::host
