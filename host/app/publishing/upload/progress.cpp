#include "host/app/publishing/upload/progress.h"

namespace xbr::host {

namespace {

constexpr std::int64_t kSecond = 1000;
constexpr std::int64_t kWindow = 10 * kSecond;
constexpr std::int64_t kFirstGuess = 3 * kSecond; ///< before that a guess would be far off
constexpr std::int64_t kSampleEvery = 100;
constexpr std::int64_t kStuckAfter = 10;

} // namespace

int Amount::percent() const {
    static constexpr std::int64_t kWhole = 100;
    return total > 0 ? static_cast<int>(bytes * kWhole / total) : 0;
}

bool UploadProgress::isStuck() const {
    return !isSent() && quietSeconds >= kStuckAfter;
}

void Pace::begin(bool isFirst, std::int64_t now) {
    if (isFirst) {
        *this = Pace();
        m_pauses = now;
        m_samples.push_back({0, 0});
    } else {
        m_pauses += now - m_pausedAt;
    }
    m_movedAt = now;
}

void Pace::pause(std::int64_t now) {
    m_pausedAt = now;
}

void Pace::sent(std::int64_t bytes, std::int64_t now) {
    m_movedAt = bytes > m_bytes ? now : m_movedAt;
    m_bytes = bytes;
    const std::int64_t time = running(now);
    if (m_samples.empty() || time - m_samples.back().time >= kSampleEvery) {
        m_samples.push_back({time, bytes});
    }
    while (m_samples.size() > 1 && time - m_samples[1].time >= kWindow) {
        m_samples.pop_front();
    }
}

std::int64_t Pace::bytesPerSecond(std::int64_t now) {
    const std::int64_t time = running(now);
    if (m_samples.empty() || time < kSecond) {
        return -1;
    }
    if (m_speed < 0 || time - m_speedAt >= kSecond) {
        const Sample& first = m_samples.front();
        m_speed = (m_bytes - first.bytes) * kSecond / (time - first.time);
        m_speedAt = time;
    }
    return m_speed;
}

std::int64_t Pace::secondsFor(std::int64_t bytes, std::int64_t now) {
    const std::int64_t speed = bytesPerSecond(now);
    const bool isKnown = speed > 0 && running(now) >= kFirstGuess;
    return isKnown ? (bytes + speed - 1) / speed : -1;
}

std::int64_t Pace::quietSeconds(std::int64_t now) const {
    return (now - m_movedAt) / kSecond;
}

} // namespace xbr::host
