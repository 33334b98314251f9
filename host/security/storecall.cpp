#include "host/security/storecall.h"

#include <memory>
#include <thread>
#include <utility>

namespace xbr::host {

namespace {

thread_local StoreCall* t_current = nullptr;

} // namespace

StoreCall& StoreCall::current() {
    return *t_current;
}

void StoreCall::setAsking(bool isAsking) {
    const std::lock_guard lock(m_mutex);
    m_isAsking = isAsking;
}

bool StoreCall::isAsking() {
    const std::lock_guard lock(m_mutex);
    return m_isAsking;
}

void StoreCall::end(StoreResult result) {
    {
        const std::lock_guard lock(m_mutex);
        m_result = result;
        m_isOver = true;
    }
    m_ended.notify_one();
}

bool StoreCall::isOverWithin(std::chrono::milliseconds time) {
    std::unique_lock lock(m_mutex);
    return m_ended.wait_for(lock, time, [this] { return m_isOver; });
}

/// False when time is up, or the user has given it up.
bool StoreCall::waitFor(StoreListener* listener, std::chrono::seconds patience) {
    static constexpr std::chrono::milliseconds kGlance{20};
    using Clock = std::chrono::steady_clock;
    Clock::time_point end = Clock::now() + patience;
    while (!isOverWithin(kGlance)) {
        const bool isForUser = isAsking();
        if (isForUser) {
            end = Clock::now() + kPatience;
        }
        const bool isGivenUp = listener && !listener->storeWaits(isForUser);
        if (isGivenUp || Clock::now() >= end) {
            return false;
        }
    }
    return true;
}

StoreResult StoreCall::run(Operation operation, StoreListener* listener, std::chrono::seconds patience) {
    static constexpr std::chrono::milliseconds kFarewell{250}; // a question is closed
    const auto call = std::make_shared<StoreCall>();
    std::thread([call, work = std::move(operation)] {
        t_current = call.get();
        call->end(work(*call));
    }).detach();
    if (call->waitFor(listener, patience)) {
        return call->m_result;
    }
    const bool wasAsking = call->isAsking();
    g_cancellable_cancel(call->m_cancellable);
    call->isOverWithin(kFarewell);
    return wasAsking ? StoreResult::kLocked : StoreResult::kSilent;
}

} // namespace xbr::host
