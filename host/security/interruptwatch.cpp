#include "host/security/interruptwatch.h"

#include <chrono>

namespace xbr::host {

InterruptWatch::InterruptWatch() : m_cancellable(g_cancellable_new()) {
    if (storeInterruption()) {
        m_thread = std::thread([this] { watch(); });
    }
}

InterruptWatch::~InterruptWatch() {
    {
        const std::lock_guard lock(m_mutex);
        m_isOver = true;
    }
    m_ended.notify_one();
    if (m_thread.joinable()) {
        m_thread.join();
    }
    g_object_unref(m_cancellable);
}

void InterruptWatch::watch() {
    static constexpr std::chrono::milliseconds kPause{50};
    const IsInterrupted isInterrupted = storeInterruption();
    std::unique_lock lock(m_mutex);
    while (!m_isOver && !isInterrupted()) {
        m_ended.wait_for(lock, kPause, [this] { return m_isOver; });
    }
    if (!m_isOver) {
        g_cancellable_cancel(m_cancellable);
    }
}

} // namespace xbr::host
