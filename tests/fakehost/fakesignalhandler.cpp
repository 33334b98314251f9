#include "tests/fakehost/fakesignalhandler.h"

#include "framework/support/objects/text.h"

namespace fakehost {

xbr::Result FakeSignalHandler::addObserver(xbr::ISubject* subject, xbr::IObserver* observer) noexcept {
    m_pairs.push_back({subject, observer});
    return xbr::kOk;
}

xbr::Result FakeSignalHandler::removeObserver(xbr::ISubject* subject, xbr::IObserver* observer) noexcept {
    const auto removed = std::erase_if(
        m_pairs, [&](const Pair& pair) { return pair.subject == subject && pair.observer == observer; });
    return removed > 0 ? xbr::kOk : xbr::kFalse;
}

void FakeSignalHandler::signal(xbr::ISubject* subject, xbr::IMessage* message) noexcept {
    const auto snapshot = m_pairs;
    for (const Pair& pair : snapshot) {
        const auto isPair = [&](const Pair& present) {
            return present.subject == pair.subject && present.observer == pair.observer;
        };
        if (pair.subject == subject && std::any_of(m_pairs.begin(), m_pairs.end(), isPair)) {
            const auto kept = xbr::Ref<xbr::IObserver>::share(pair.observer);
            kept->notify(subject, message);
        }
    }
}

void FakeSignalHandler::postSignal(xbr::ISubject* subject, xbr::IMessage* message) noexcept {
    postedSignals.push_back(xbr::toString(message->name()));
    m_posted.push_back({subject, nullptr, xbr::Ref<xbr::IMessage>::share(message), nullptr});
}

void FakeSignalHandler::post(xbr::IObserver* observer, xbr::IMessage* message, std::int32_t delay) noexcept {
    posts.push_back(xbr::toString(message->name()) + " " + std::to_string(delay));
    m_posted.push_back({nullptr, observer, xbr::Ref<xbr::IMessage>::share(message), nullptr});
}

void FakeSignalHandler::forgetObserver(xbr::IObserver* observer) noexcept {
    std::erase_if(m_pairs, [&](const Pair& pair) { return pair.observer == observer; });
    std::erase_if(m_posted,
                  [&](const Posted& posted) { return posted.observer && posted.observer == observer; });
}

void FakeSignalHandler::forgetSubject(xbr::ISubject* subject) noexcept {
    std::erase_if(m_pairs, [&](const Pair& pair) { return pair.subject == subject; });
    std::erase_if(m_posted,
                  [&](const Posted& posted) { return posted.subject && posted.subject == subject; });
}

void FakeSignalHandler::enqueue(std::function<void()> task) {
    m_posted.push_back({nullptr, nullptr, nullptr, std::move(task)});
}

void FakeSignalHandler::pump() {
    while (!m_posted.empty()) {
        const Posted posted = std::move(m_posted.front());
        m_posted.pop_front();
        if (posted.task) {
            posted.task();
        } else if (posted.subject) {
            signal(posted.subject, posted.message.get());
        } else {
            const auto kept = xbr::Ref<xbr::IObserver>::share(posted.observer);
            kept->notify(nullptr, posted.message.get());
        }
    }
}

} // namespace fakehost
