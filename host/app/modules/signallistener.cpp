#include "host/app/modules/signallistener.h"

namespace xbr::host {

class SignalListener::Observer final : public Object<IObserver> {
public:
    explicit Observer(Handler handler) : m_handler(std::move(handler)) {}

    void notify(ISubject* subject, IMessage* message) noexcept override {
        const Handler handler = m_handler; // a copy: the listener may die in there
        if (handler && message) {
            handler(subject, *message);
        }
    }

    void disconnect() {
        m_handler = nullptr;
        XBRGetSignalHandler()->forgetObserver(this);
    }

private:
    Handler m_handler;
};

SignalListener::SignalListener(Handler handler) : m_observer(make<Observer>(std::move(handler))) {}

SignalListener::~SignalListener() {
    m_observer->disconnect();
}

void SignalListener::listen(Ref<ISubject> subject) {
    if (subject) {
        XBRGetSignalHandler()->addObserver(subject.get(), m_observer.get());
        m_subjects.push_back(std::move(subject));
    }
}

IObserver* SignalListener::observer() const {
    return m_observer.get();
}

} // namespace xbr::host
