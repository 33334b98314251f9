#pragma once

#include "host/security/storeresult.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <gio/gio.h>
#include <mutex>

namespace xbr::host {

/// One operation on the store, which runs on a thread of its own: a bus may accept and never say a word, and
/// not every call of GLib can be given up. A thread that does not come back is left to itself.
class StoreCall {
public:
    using Operation = std::function<StoreResult(StoreCall& call)>;

    /// How long the store may take for what does not depend on the user. Covers its start by the bus.
    static constexpr std::chrono::seconds kPatience{5};

    StoreCall() : m_cancellable(g_cancellable_new()) {}
    StoreCall(const StoreCall&) = delete;
    StoreCall& operator=(const StoreCall&) = delete;
    ~StoreCall() { g_object_unref(m_cancellable); }

    /// Runs `operation`, which may outlive this call when it hangs, and waits for it: `patience` at most,
    /// and as long as the user is asked. `listener` may be null.
    static StoreResult run(Operation operation, StoreListener* listener,
                           std::chrono::seconds patience = kPatience);

    /// The one that runs on the calling thread.
    static StoreCall& current();

    /// For GLib's calls; borrowed.
    GCancellable* cancellable() const { return m_cancellable; }

    /// The user is asked for the keyring's password, from now on or no longer.
    void setAsking(bool isAsking);

private:
    void end(StoreResult result);
    bool isOverWithin(std::chrono::milliseconds time);
    bool isAsking();
    bool waitFor(StoreListener* listener, std::chrono::seconds patience);

    GCancellable* m_cancellable;
    std::mutex m_mutex;
    std::condition_variable m_ended;
    bool m_isOver = false;
    bool m_isAsking = false;
    StoreResult m_result = StoreResult::kSilent;
};

} // namespace xbr::host
