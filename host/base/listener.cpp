#include "host/base/listener.h"

namespace xbr::host {

class Listener::Observer final : public Object<IObserver> {
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

Listener::Listener(Handler handler) : m_observer(make<Observer>(std::move(handler))) {}

Listener::~Listener() {
    m_observer->disconnect();
}

IObserver* Listener::observer() const {
    return m_observer.get();
}

void Listener::listen(Ref<ISubject> subject) {
    if (subject) {
        XBRGetSignalHandler()->addObserver(subject.get(), m_observer.get());
        m_subjects.push_back(std::move(subject));
    }
}

} // namespace xbr::host
