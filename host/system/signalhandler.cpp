#include "host/system/signalhandler.h"

#include "host/base/mainthread.h"

#include <QDeadlineTimer>
#include <QMetaObject>
#include <QTimer>

#include <algorithm>

namespace xbr::host {

SignalHandler& SignalHandler::instance() noexcept {
    // Never destroyed: modules may forget their objects while the process ends, and messages that were not
    // delivered until then may belong to libraries that are closed.
    static auto* const handler = make<SignalHandler>().detach();
    return *handler;
}

Result SignalHandler::addObserver(ISubject* subject, IObserver* observer) noexcept {
    assertMainThread();
    if (!subject || !observer) {
        return kInvalidArgument;
    }
    auto& registrations = m_observers[subject];
    if (std::any_of(registrations.begin(), registrations.end(),
                    [&](const Registration& known) { return known.observer == observer; })) {
        return kFalse;
    }
    registrations.push_back({observer, ++m_lastSerial});
    return kOk;
}

Result SignalHandler::removeObserver(ISubject* subject, IObserver* observer) noexcept {
    assertMainThread();
    const auto found = m_observers.find(subject);
    if (found == m_observers.end()) {
        return kFalse;
    }
    const auto removed =
        std::erase_if(found->second, [&](const Registration& known) { return known.observer == observer; });
    if (found->second.empty()) {
        m_observers.erase(found);
    }
    return removed > 0 ? kOk : kFalse;
}

void SignalHandler::signal(ISubject* subject, IMessage* message) noexcept {
    assertMainThread();
    const auto found = m_observers.find(subject);
    if (found == m_observers.end() || !message) {
        return;
    }
    const auto registrations = found->second; // a copy: the list may change with every delivery
    for (const auto& registration : registrations) {
        if (isRegistered(subject, registration.serial)) {
            const auto receiver = Ref<IObserver>::share(registration.observer);
            receiver->notify(subject, message);
        }
    }
}

void SignalHandler::postSignal(ISubject* subject, IMessage* message) noexcept {
    assertMainThread();
    if (subject && message) {
        enqueue({++m_lastSerial, subject, nullptr, Ref<IMessage>::share(message)});
    }
}

void SignalHandler::post(IObserver* observer, IMessage* message, std::int32_t delay) noexcept {
    assertMainThread();
    if (!observer || !message) {
        return;
    }
    Posted posted{++m_lastSerial, nullptr, observer, Ref<IMessage>::share(message)};
    if (delay <= 0) {
        enqueue(std::move(posted));
        return;
    }
    const auto serial = posted.serial;
    m_delayed.push_back(std::move(posted));
    // The timer starts from the loop, because before there is an application none can be started.
    const auto deadline = QDeadlineTimer(delay, Qt::PreciseTimer).deadline();
    QMetaObject::invokeMethod(
        &m_loop, [this, serial, deadline] { startDelay(serial, deadline); }, Qt::QueuedConnection);
}

void SignalHandler::forgetObserver(IObserver* observer) noexcept {
    assertMainThread();
    for (auto entry = m_observers.begin(); entry != m_observers.end();) {
        std::erase_if(entry->second, [&](const Registration& known) { return known.observer == observer; });
        entry = entry->second.empty() ? m_observers.erase(entry) : std::next(entry);
    }
    dropPosted([&](const Posted& posted) { return posted.observer == observer; });
}

void SignalHandler::forgetSubject(ISubject* subject) noexcept {
    assertMainThread();
    m_observers.erase(subject);
    dropPosted([&](const Posted& posted) { return posted.subject == subject; });
}

void SignalHandler::dropPosted() noexcept {
    assertMainThread();
    dropPosted([](const Posted&) { return true; });
}

bool SignalHandler::isRegistered(ISubject* subject, std::uint64_t serial) const noexcept {
    const auto found = m_observers.find(subject);
    return found != m_observers.end() &&
           std::binary_search(found->second.begin(), found->second.end(), Registration{nullptr, serial},
                              [](const Registration& left, const Registration& right) {
                                  return left.serial < right.serial;
                              });
}

void SignalHandler::enqueue(Posted posted) {
    m_posted.push_back(std::move(posted));
    // One turn of the loop for each message: when a handler runs a loop of its own, the messages behind it
    // are delivered there, and user input is not held up by a long row of messages.
    QMetaObject::invokeMethod(
        &m_loop, [this] { deliverNext(); }, Qt::QueuedConnection);
}

void SignalHandler::startDelay(std::uint64_t serial, std::int64_t deadline) {
    const auto remaining =
        std::max(deadline - QDeadlineTimer::current(Qt::PreciseTimer).deadline(), qint64{0});
    QTimer::singleShot(static_cast<int>(remaining), Qt::PreciseTimer, &m_loop,
                       [this, serial] { deliverDelayed(serial); });
}

void SignalHandler::deliverNext() {
    // Fewer messages than turns: some were dropped.
    if (!m_posted.empty()) {
        const Posted posted = std::move(m_posted.front());
        m_posted.pop_front();
        deliver(posted);
    }
    tellQuiet();
}

void SignalHandler::tellQuiet() const {
    if (!hasPosted() && m_quietListener) {
        const auto listener = m_quietListener; // a copy: it may be replaced while it runs
        listener();
    }
}

void SignalHandler::deliverDelayed(std::uint64_t serial) {
    const auto found = std::find_if(m_delayed.begin(), m_delayed.end(),
                                    [&](const Posted& posted) { return posted.serial == serial; });
    if (found != m_delayed.end()) {
        const Posted posted = std::move(*found);
        m_delayed.erase(found);
        deliver(posted);
    }
    tellQuiet();
}

void SignalHandler::deliver(const Posted& posted) {
    ++m_delivering;
    if (posted.subject) {
        signal(posted.subject, posted.message.get());
    } else {
        const auto receiver = Ref<IObserver>::share(posted.observer);
        receiver->notify(nullptr, posted.message.get());
    }
    --m_delivering;
}

template <class Predicate>
void SignalHandler::dropPosted(Predicate predicate) {
    // What is dropped is released last: the end of a message may end objects that call here again.
    std::vector<Posted> dropped;
    for (auto* queue : {&m_posted, &m_delayed}) {
        if (std::none_of(queue->begin(), queue->end(), predicate)) {
            continue;
        }
        std::deque<Posted> kept;
        for (auto& posted : *queue) {
            if (predicate(posted)) {
                dropped.push_back(std::move(posted));
            } else {
                kept.push_back(std::move(posted));
            }
        }
        queue->swap(kept);
    }
}

} // namespace xbr::host

xbr::ISignalHandler* XBRGetSignalHandler() noexcept {
    return &xbr::host::SignalHandler::instance();
}
