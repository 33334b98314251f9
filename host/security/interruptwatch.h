#pragma once

#include <condition_variable>
#include <gio/gio.h>
#include <mutex>
#include <thread>

namespace xbr::host {

/// Ends a call into the store when the user wants the program to end: a question for the keyring's password
/// may wait for ever, and the event loop stands still meanwhile. Watches from a thread of its own while it
/// lives.
class InterruptWatch {
public:
    InterruptWatch();
    InterruptWatch(const InterruptWatch&) = delete;
    InterruptWatch& operator=(const InterruptWatch&) = delete;
    ~InterruptWatch();

    /// For the calls; borrowed.
    GCancellable* cancellable() const { return m_cancellable; }

private:
    void watch();

    GCancellable* m_cancellable;
    std::mutex m_mutex;
    std::condition_variable m_ended;
    bool m_isOver = false;
    std::thread m_thread;
};

/// Whether the program is to end, as setStoreInterruption names it; null when nobody did.
using IsInterrupted = bool (*)() noexcept;
IsInterrupted storeInterruption();

} // namespace xbr::host
