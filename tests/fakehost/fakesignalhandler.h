#pragma once

#include "framework/abi/controller.h"
#include "framework/abi/listmodel.h"
#include "framework/abi/parameter.h"
#include "tests/fakehost/answers.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace fakehost {

/// A text in quotes, and anything else as an integer.
inline std::string written(const xbr::Value& value) {
    const bool isText = value.kind == xbr::ValueKind::kText;
    return isText ? '"' + xbr::toString(value.text) + '"' : std::to_string(xbr::integerOf(value, -1));
}

/// Delivers signals at once and posted messages when `pump` is called, and writes down all of them.
class FakeSignalHandler final : public xbr::Object<xbr::ISignalHandler> {
public:
    xbr::Result addObserver(xbr::ISubject* subject, xbr::IObserver* observer) noexcept override {
        m_pairs.push_back({subject, observer});
        return xbr::kOk;
    }
    xbr::Result removeObserver(xbr::ISubject* subject, xbr::IObserver* observer) noexcept override {
        return std::erase(m_pairs, Pair{subject, observer}) > 0 ? xbr::kOk : xbr::kFalse;
    }
    void signal(xbr::ISubject* subject, xbr::IMessage* message) noexcept override {
        write("", subject, *message);
        deliver(subject, message);
    }
    void postSignal(xbr::ISubject* subject, xbr::IMessage* message) noexcept override {
        write("post ", subject, *message);
        m_posted.push_back({subject, nullptr, xbr::Ref<xbr::IMessage>::share(message), nullptr});
    }
    void post(xbr::IObserver* observer, xbr::IMessage* message, std::int32_t delay) noexcept override {
        write("to ", observer, *message);
        posts.push_back(xbr::toString(message->name()) + " " + std::to_string(delay));
        m_posted.push_back({nullptr, observer, xbr::Ref<xbr::IMessage>::share(message), nullptr});
    }
    void forgetObserver(xbr::IObserver* observer) noexcept override {
        std::erase_if(m_pairs, [&](const Pair& pair) { return pair.observer == observer; });
        std::erase_if(m_posted,
                      [&](const Posted& posted) { return posted.observer && posted.observer == observer; });
    }
    void forgetSubject(xbr::ISubject* subject) noexcept override {
        std::erase_if(m_pairs, [&](const Pair& pair) { return pair.subject == subject; });
        std::erase_if(m_posted,
                      [&](const Posted& posted) { return posted.subject && posted.subject == subject; });
    }

    /// Runs `task` in its turn, like a completion that comes from the event loop.
    void enqueue(std::function<void()> task) {
        m_posted.push_back({nullptr, nullptr, nullptr, std::move(task)});
    }

    /// Delivers everything posted, also what is posted meanwhile.
    void pump() {
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

    /// What was told since the last call, one line each, in order: "Client: propertyChanged" for a signal,
    /// "post Client: authorizationCompleted" for a posted one, "upload = 0 (disabled)" for a parameter.
    std::string takeTold() { return std::exchange(m_told, {}); }

    /// What was posted to observers, as "name delay".
    std::vector<std::string> posts;

    /// Observers and undelivered messages: 0 when everybody cleaned up.
    std::size_t remaining() const { return m_pairs.size() + m_posted.size(); }

private:
    struct Pair {
        bool operator==(const Pair&) const = default;
        xbr::ISubject* subject;
        xbr::IObserver* observer;
    };
    struct Posted {
        xbr::ISubject* subject;
        xbr::IObserver* observer;
        xbr::Ref<xbr::IMessage> message;
        std::function<void()> task;
    };

    void write(const std::string& how, xbr::IObject* who, const xbr::IMessage& message) {
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
    void deliver(xbr::ISubject* subject, xbr::IMessage* message) {
        const auto snapshot = m_pairs;
        for (const Pair& pair : snapshot) {
            if (pair.subject == subject && std::find(m_pairs.begin(), m_pairs.end(), pair) != m_pairs.end()) {
                const auto kept = xbr::Ref<xbr::IObserver>::share(pair.observer);
                kept->notify(subject, message);
            }
        }
    }

    std::string m_told;
    std::vector<Pair> m_pairs;
    std::deque<Posted> m_posted;
};

} // namespace fakehost
