#pragma once

#include "framework/abi/message.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/value.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace xbr {

/// A named message with arguments.
class Message final : public Object<IMessage> {
public:
    explicit Message(std::string_view name, std::initializer_list<Value> arguments = {});

    Text name() const noexcept override;
    std::int32_t countArguments() const noexcept override;
    Value argument(std::int32_t index) const noexcept override;

private:
    std::string m_name;
    std::vector<OwnedValue> m_arguments;
};

/// True when `message` bears that name.
bool isNamed(const IMessage& message, std::string_view name) noexcept;

/// Delivers a message to the observers of `subject` at once.
void signal(ISubject& subject, std::string_view name, std::initializer_list<Value> arguments = {});

/// Delivers a message to the observers of `subject` after the current handler has returned.
void postSignal(ISubject& subject, std::string_view name);

/// Delivers a message to `observer` after the current handler has returned; `delay` as in
/// ISignalHandler::post.
void post(IObserver& observer, std::string_view name, std::int32_t delay = 0);

} // namespace xbr
