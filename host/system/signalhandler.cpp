#include "host/system/signalhandler.h"

#include "host/base/mainthread.h"

#include <QDeadlineTimer>
#include <QMetaObject>
#include <QTimer>

#include <algorithm>
#include <vector>

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
    const auto [known, isNew] = m_subjects[observer].try_emplace(subject, m_lastSerial + 1);
    if (!isNew) {
        return kFalse;
    }
    m_observers[subject].emplace(++m_lastSerial, observer);
    return kOk;
}

Result SignalHandler::removeObserver(ISubject* subject, IObserver* observer) noexcept {
    assertMainThread();
    const auto subjects = m_subjects.find(observer);
    auto known = subjects == m_subjects.end() ? Subjects::node_type() : subjects->second.extract(subject);
    if (!known) {
        return kFalse;
    }
    if (subjects->second.empty()) {
        m_subjects.erase(subjects);
    }
    removeFrom(subject, known.mapped());
    return kOk;
}

void SignalHandler::removeFrom(ISubject* subject, Serial serial) {
    const auto observers = m_observers.find(subject);
    observers->second.erase(serial);
    if (observers->second.empty()) {
        m_observers.erase(observers);
    }
}

void SignalHandler::signal(ISubject* subject, IMessage* message) noexcept {
    assertMainThread();
    const auto present = m_observers.find(subject);
    if (present == m_observers.end() || !message) {
        return;
    }
    const auto registrations = present->second; // a copy: the list may change with every delivery
    for (const auto& [serial, observer] : registrations) {
        const auto left = m_observers.find(subject);
        if (left != m_observers.end() && left->second.contains(serial)) {
            const auto receiver = Ref<IObserver>::share(observer);
            receiver->notify(subject, message);
        }
    }
}

void SignalHandler::postSignal(ISubject* subject, IMessage* message) noexcept {
    assertMainThread();
    if (subject && message) {
        add(m_posted, {subject, nullptr, Ref<IMessage>::share(message)});
        postTurn();
    }
}

void SignalHandler::post(IObserver* observer, IMessage* message, std::int32_t delay) noexcept {
    assertMainThread();
    if (!observer || !message) {
        return;
    }
    const auto serial =
        add(delay > 0 ? m_delayed : m_posted, {nullptr, observer, Ref<IMessage>::share(message)});
    if (delay <= 0) {
        postTurn();
        return;
    }
    // The timer starts from the loop, because before there is an application none can be started.
    const auto deadline = QDeadlineTimer(delay, Qt::PreciseTimer).deadline();
    QMetaObject::invokeMethod(
        &m_loop, [this, serial, deadline] { startDelay(serial, deadline); }, Qt::QueuedConnection);
}

void SignalHandler::forgetObserver(IObserver* observer) noexcept {
    assertMainThread();
    if (auto subjects = m_subjects.extract(observer)) {
        for (const auto& [subject, serial] : subjects.mapped()) {
            removeFrom(subject, serial);
        }
    }
    dropPostedTo(observer);
}

void SignalHandler::forgetSubject(ISubject* subject) noexcept {
    assertMainThread();
    if (auto observers = m_observers.extract(subject)) {
        for (const auto& [serial, observer] : observers.mapped()) {
            const auto subjects = m_subjects.find(observer);
            subjects->second.erase(subject);
            if (subjects->second.empty()) {
                m_subjects.erase(subjects);
            }
        }
    }
    dropPostedTo(subject);
}

void SignalHandler::dropPosted() noexcept {
    assertMainThread();
    // What is dropped is released last: the end of a message may end objects that call here again.
    const auto posted = std::exchange(m_posted, {});
    const auto delayed = std::exchange(m_delayed, {});
    m_postedTo.clear();
}

void SignalHandler::dropPostedTo(const void* address) {
    std::vector<Queue::node_type> dropped; // released last, as above
    auto place = m_postedTo.lower_bound({address, 0});
    while (place != m_postedTo.end() && place->first == address) {
        dropped.push_back(m_posted.extract(place->second));
        dropped.push_back(m_delayed.extract(place->second));
        place = m_postedTo.erase(place);
    }
}

SignalHandler::Serial SignalHandler::add(Queue& queue, Posted posted) {
    m_postedTo.emplace(posted.address(), ++m_lastSerial);
    queue.emplace(m_lastSerial, std::move(posted));
    return m_lastSerial;
}

void SignalHandler::hold(bool isHeld) {
    assertMainThread();
    m_isHeld = isHeld;
    if (!isHeld && !m_posted.empty()) {
        postTurn();
    }
}

void SignalHandler::postTurn() {
    // One message with each turn of the loop, so that a long row of them does not hold up what the user does.
    if (!std::exchange(m_hasTurn, true)) {
        QMetaObject::invokeMethod(
            &m_loop, [this] { takeTurn(); }, Qt::QueuedConnection);
    }
}

void SignalHandler::takeTurn() {
    m_hasTurn = false;
    if (m_isHeld) {
        return;
    }
    if (m_posted.size() > 1) {
        postTurn(); // before the delivery: a handler may run a loop of its own, which delivers the next
    }
    if (!m_posted.empty()) {
        deliver(m_posted, m_posted.begin());
    }
    tellQuiet();
}

void SignalHandler::tellQuiet() const {
    if (!hasPosted() && m_quietListener) {
        const auto listener = m_quietListener; // a copy: it may be replaced while it runs
        listener();
    }
}

void SignalHandler::startDelay(Serial serial, std::int64_t deadline) {
    const auto remaining =
        std::max(deadline - QDeadlineTimer::current(Qt::PreciseTimer).deadline(), qint64{0});
    QTimer::singleShot(static_cast<int>(remaining), Qt::PreciseTimer, &m_loop, [this, serial] {
        const auto place = m_delayed.find(serial);
        if (place == m_delayed.end()) {
            return;
        }
        if (m_isHeld) {
            m_posted.insert(m_delayed.extract(place));
            return;
        }
        deliver(m_delayed, place);
        tellQuiet();
    });
}

void SignalHandler::deliver(Queue& queue, Queue::iterator place) {
    const auto node = queue.extract(place);
    const Posted& posted = node.mapped();
    m_postedTo.erase({posted.address(), node.key()});
    ++m_delivering;
    if (posted.subject) {
        signal(posted.subject, posted.message.get());
    } else {
        const auto receiver = Ref<IObserver>::share(posted.observer);
        receiver->notify(nullptr, posted.message.get());
    }
    --m_delivering;
}

} // namespace xbr::host

xbr::ISignalHandler* XBRGetSignalHandler() noexcept {
    return &xbr::host::SignalHandler::instance();
}
