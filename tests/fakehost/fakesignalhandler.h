#pragma once

#include "framework/abi/message.h"
#include "framework/support/objects/object.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace fakehost {

/// A text in quotes, and anything else as an integer.
std::string written(const xbr::Value& value);

/// Delivers signals at once and posted messages when `pump` is called, and writes down all of them.
class FakeSignalHandler final : public xbr::Object<xbr::ISignalHandler> {
public:
    xbr::Result addObserver(xbr::ISubject* subject, xbr::IObserver* observer) noexcept override;
    xbr::Result removeObserver(xbr::ISubject* subject, xbr::IObserver* observer) noexcept override;
    void signal(xbr::ISubject* subject, xbr::IMessage* message) noexcept override;
    void postSignal(xbr::ISubject* subject, xbr::IMessage* message) noexcept override;
    void post(xbr::IObserver* observer, xbr::IMessage* message, std::int32_t delay) noexcept override;
    void forgetObserver(xbr::IObserver* observer) noexcept override;
    void forgetSubject(xbr::ISubject* subject) noexcept override;

    /// Runs `task` in its turn, like a completion that comes from the event loop.
    void enqueue(std::function<void()> task);

    /// Delivers everything posted, also what is posted meanwhile.
    void pump();

    /// What was told since the last call, one line each, in order: "Client: propertyChanged" for a signal,
    /// "post Client: authorizationCompleted" for a posted one, "upload = 0 (disabled)" for a parameter.
    std::string takeTold();

    /// What was posted to observers, as "name delay".
    std::vector<std::string> posts;

    /// What was posted to the observers of a subject, by name.
    std::vector<std::string> postedSignals;

    /// Observers and undelivered messages: 0 when everybody cleaned up.
    std::size_t remaining() const { return m_pairs.size() + m_posted.size(); }

private:
    struct Pair {
        xbr::ISubject* subject;
        xbr::IObserver* observer;
    };
    struct Posted {
        xbr::ISubject* subject;
        xbr::IObserver* observer;
        xbr::Ref<xbr::IMessage> message;
        std::function<void()> task;
    };

    void write(const std::string& how, xbr::IObject* who, const xbr::IMessage& message);
    void deliver(xbr::ISubject* subject, xbr::IMessage* message);

    std::string m_told;
    std::vector<Pair> m_pairs;
    std::deque<Posted> m_posted;
};

} // namespace fakehost
