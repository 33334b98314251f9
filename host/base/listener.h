#pragma once

#include "framework/abi/message.h"
#include "framework/support/objects/object.h"

#include <functional>
#include <vector>

namespace xbr::host {

/// Lets a function hear the messages of subjects until this object dies, which may happen within a call of
/// the function. The subjects are kept.
class Listener {
public:
    using Handler = std::function<void(ISubject* subject, const IMessage& message)>;

    explicit Listener(Handler handler);
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    ~Listener();

    /// Null is ignored.
    void listen(Ref<ISubject> subject);

    /// For calls that want an observer; borrowed.
    IObserver* observer() const;

private:
    class Observer;
    Ref<Observer> m_observer;
    std::vector<Ref<ISubject>> m_subjects;
};

} // namespace xbr::host
