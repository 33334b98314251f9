#pragma once

#include "framework/abi/message.h"
#include "framework/support/objects/object.h"

#include <functional>
#include <vector>

namespace xbr::host {

/// Lets a function of the program hear the messages of subjects, until this object dies.
class SignalListener {
public:
    using Handler = std::function<void(ISubject* subject, const IMessage& message)>;

    explicit SignalListener(Handler handler);
    SignalListener(const SignalListener&) = delete;
    SignalListener& operator=(const SignalListener&) = delete;
    ~SignalListener();

    /// Listens to a subject; kept, so that it cannot go while it is listened to. Null is ignored.
    void listen(Ref<ISubject> subject);

    /// For calls that want an observer; borrowed.
    IObserver* observer() const;

private:
    class Observer;
    Ref<Observer> m_observer;
    std::vector<Ref<ISubject>> m_subjects;
};

} // namespace xbr::host
