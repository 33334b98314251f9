#include "host/app/publishing/settling.h"

namespace xbr::host {

namespace {

constexpr int kTurnTime = 10; ///< milliseconds; short against everything that a person or a network does
constexpr int kQuietTurns = 3;

} // namespace

Settling::Settling(std::function<bool()> isIdle, std::function<void()> done)
    : m_isIdle(std::move(isIdle)),
      m_done(std::move(done)) {
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { turn(); });
}

void Settling::start() {
    m_quietTurns = 0;
    m_timer.start(kTurnTime);
}

void Settling::turn() {
    if (!m_isIdle()) {
        m_quietTurns = 0;
        return;
    }
    if (++m_quietTurns >= kQuietTurns) {
        m_timer.stop();
        const auto done = m_done;
        done();
    }
}

} // namespace xbr::host
