#pragma once

#include <functional>
#include <string>

/// Set-up functions of libxbrsecurity for the host program. Modules never use them. All on the main thread.
namespace xbr::host {

/// Hears, in plain words for the user, why credentials cannot be kept.
using StoreProblemListener = std::function<void(const std::string& plainWords)>;

/// Names who is told when a credential cannot be stored or removed because the store is missing or locked, or
/// because the user refused. Called at most once per run for each, from within ICredentialManager::add and
/// remove: show the words later, not in a dialog inside the call. An empty function ends it.
__attribute__((visibility("default"))) void setStoreProblemListener(StoreProblemListener listener);

/// Names how the library learns that the program is to end (null: not at all). While a call into the store
/// waits for the user, `isInterrupted` is asked from another thread; when it says so, the call fails as if
/// the user refused.
__attribute__((visibility("default"))) void setStoreInterruption(bool (*isInterrupted)() noexcept);

} // namespace xbr::host
