#include "tests/fakehost/fakesignalhandler.h"

#include "framework/abi/controller.h"
#include "framework/abi/listmodel.h"
#include "framework/abi/parameter.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"

namespace fakehost {

std::string written(const xbr::Value& value) {
    const bool isText = value.kind == xbr::ValueKind::kText;
    return isText ? '"' + xbr::toString(value.text) + '"' : std::to_string(xbr::integerOf(value, -1));
}

void FakeSignalHandler::write(const std::string& how, xbr::IObject* who, const xbr::IMessage& message) {
    m_told += how;
    if (const auto parameter = xbr::query<xbr::IParameter>(who)) {
        m_told += xbr::toString(parameter->name()) + " = " + written(parameter->value());
        m_told += parameter->isEnabled() ? "\n" : " (disabled)\n";
        return;
    }
    const auto controller = xbr::query<xbr::IController>(who);
    m_told +=
        (controller ? xbr::toString(controller->name()) : "list") + ": " + xbr::toString(message.name());
    for (std::int32_t i = 0; i < message.countArguments(); ++i) {
        m_told += " " + written(message.argument(i));
    }
    m_told += '\n';
}

std::string FakeSignalHandler::takeTold() {
    return std::exchange(m_told, {});
}

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
    write("", subject, *message);
    deliver(subject, message);
}

void FakeSignalHandler::deliver(xbr::ISubject* subject, xbr::IMessage* message) {
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
    write("post ", subject, *message);
    postedSignals.push_back(xbr::toString(message->name()));
    m_posted.push_back({subject, nullptr, xbr::Ref<xbr::IMessage>::share(message), nullptr});
}

void FakeSignalHandler::post(xbr::IObserver* observer, xbr::IMessage* message, std::int32_t delay) noexcept {
    write("to ", observer, *message);
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
            deliver(posted.subject, posted.message.get());
        } else {
            const auto kept = xbr::Ref<xbr::IObserver>::share(posted.observer);
            kept->notify(nullptr, posted.message.get());
        }
    }
}

} // namespace fakehost
