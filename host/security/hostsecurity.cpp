#include "host/security/hostsecurity.h"

#include "host/security/storeproblem.h"

namespace xbr::host {

namespace {

StoreProblemListener g_listener;
bool g_told = false;

} // namespace

void setStoreProblemListener(StoreProblemListener listener) {
    g_listener = std::move(listener);
}

void tellStoreProblem(StoreResult result) {
    if (!g_listener || g_told) {
        return;
    }
    g_told = true;
    // A copy: the listener may replace itself.
    const StoreProblemListener listener = g_listener;
    listener(storeProblemText(result));
}

} // namespace xbr::host
