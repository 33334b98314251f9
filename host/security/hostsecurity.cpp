#include "host/security/hostsecurity.h"

#include "host/security/interruptwatch.h"
#include "host/security/storeproblem.h"

namespace xbr::host {

namespace {

StoreProblemListener g_listener;
IsInterrupted g_isInterrupted = nullptr;

/// Tells the listener unless `told` says that it was told before.
void tellOnce(bool& told, const std::string& words) {
    if (!g_listener || told) {
        return;
    }
    told = true;
    // A copy: the listener may replace itself.
    const StoreProblemListener listener = g_listener;
    listener(words);
}

} // namespace

void setStoreProblemListener(StoreProblemListener listener) {
    g_listener = std::move(listener);
}

void setStoreInterruption(bool (*isInterrupted)() noexcept) {
    g_isInterrupted = isInterrupted;
}

IsInterrupted storeInterruption() {
    return g_isInterrupted;
}

void tellStoreProblem(StoreResult result) {
    static bool told = false;
    tellOnce(told, storeProblemText(result));
}

void tellRemoveProblem(StoreResult result) {
    static bool told = false;
    // Without a store nothing can have been kept.
    if (result == StoreResult::kLocked || result == StoreResult::kFailed) {
        tellOnce(told, removeProblemText(result));
    }
}

} // namespace xbr::host
