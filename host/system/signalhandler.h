#pragma once

#include "framework/abi/message.h"
#include "framework/support/objects/object.h"

#include <QObject>

#include <deque>
#include <functional>
#include <unordered_map>
#include <vector>

namespace xbr::host {

/// Delivers messages at once, or from the Qt event loop of the main thread.
class SignalHandler final : public Object<ISignalHandler> {
public:
    static SignalHandler& instance() noexcept;

    Result addObserver(ISubject* subject, IObserver* observer) noexcept override;
    Result removeObserver(ISubject* subject, IObserver* observer) noexcept override;
    void signal(ISubject* subject, IMessage* message) noexcept override;
    void postSignal(ISubject* subject, IMessage* message) noexcept override;
    void post(IObserver* observer, IMessage* message, std::int32_t delay) noexcept override;
    void forgetObserver(IObserver* observer) noexcept override;
    void forgetSubject(ISubject* subject) noexcept override;

    void dropPosted() noexcept;

    /// True while a message is posted, or is being delivered. Those that wait for their time do not count.
    bool hasPosted() const noexcept { return !m_posted.empty() || m_delivering > 0; }

    /// Is told, from the event loop, that nothing is posted any more.
    void setQuietListener(std::function<void()> listener) { m_quietListener = std::move(listener); }

private:
    /// One observer of a subject. The serial number tells apart who was added when: an address may be
    /// removed and added again, or reused by another object, while a message is delivered.
    struct Registration {
        IObserver* observer;
        std::uint64_t serial;
    };
    struct Posted {
        std::uint64_t serial;
        ISubject* subject;   ///< null for a message to one observer
        IObserver* observer; ///< null for a message to the observers of `subject`
        Ref<IMessage> message;
    };

    bool isRegistered(ISubject* subject, std::uint64_t serial) const noexcept;
    void enqueue(Posted posted);
    void startDelay(std::uint64_t serial, std::int64_t deadline);
    void deliverNext();
    void deliverDelayed(std::uint64_t serial);
    void deliver(const Posted& posted);
    void tellQuiet() const;
    template <class Predicate>
    void dropPosted(Predicate predicate);

    std::unordered_map<ISubject*, std::vector<Registration>> m_observers; ///< each in order of the serials
    std::deque<Posted> m_posted;
    std::deque<Posted> m_delayed;
    std::uint64_t m_lastSerial = 0;
    int m_delivering = 0; ///< deliveries on the stack: one may run the event loop
    std::function<void()> m_quietListener;
    QObject m_loop; ///< receives the turns of the event loop
};

} // namespace xbr::host
