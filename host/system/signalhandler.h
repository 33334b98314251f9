#pragma once

#include "framework/abi/message.h"
#include "framework/support/objects/object.h"

#include <QObject>

#include <functional>
#include <map>
#include <set>
#include <unordered_map>
#include <utility>

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

    /// Holds back what is posted, until it is let go again.
    void hold(bool isHeld);

    /// True while a message is posted, or is being delivered. Those that wait for their time do not count.
    bool hasPosted() const noexcept { return !m_posted.empty() || m_delivering > 0; }

    /// Is told, from the event loop, that nothing is posted any more.
    void setQuietListener(std::function<void()> listener) { m_quietListener = std::move(listener); }

private:
    /// Tells apart who was added, and what was posted, when: an address may be removed and added again, or
    /// reused by another object, while a message is delivered.
    using Serial = std::uint64_t;

    struct Posted {
        ISubject* subject;   ///< null for a message to one observer
        IObserver* observer; ///< null for a message to the observers of `subject`
        Ref<IMessage> message;

        const void* address() const noexcept {
            return subject ? static_cast<const void*>(subject) : observer;
        }
    };
    using Queue = std::map<Serial, Posted>;
    using Subjects = std::unordered_map<ISubject*, Serial>;

    void removeFrom(ISubject* subject, Serial serial);
    Serial add(Queue& queue, Posted posted);
    void postTurn();
    void takeTurn();
    void startDelay(Serial serial, std::int64_t deadline);
    void deliver(Queue& queue, Queue::iterator place);
    void dropPostedTo(const void* address);
    void tellQuiet() const;

    // Both ways, so that who leaves is found without a look at all others.
    std::unordered_map<ISubject*, std::map<Serial, IObserver*>> m_observers;
    std::unordered_map<IObserver*, Subjects> m_subjects;

    Queue m_posted;
    Queue m_delayed;
    std::set<std::pair<const void*, Serial>> m_postedTo; ///< by the addresses of both queues
    Serial m_lastSerial = 0;
    bool m_isHeld = false;
    bool m_hasTurn = false; ///< the next turn of the event loop is asked for
    int m_delivering = 0;   ///< deliveries on the stack: one may run the event loop
    std::function<void()> m_quietListener;
    QObject m_loop; ///< receives the turns of the event loop
};

} // namespace xbr::host
