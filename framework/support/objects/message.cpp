#include "framework/support/objects/message.h"

#include "framework/support/objects/text.h"

namespace xbr {

Message::Message(std::string_view name, std::initializer_list<Value> arguments) : m_name(name) {
    m_arguments.reserve(arguments.size());
    for (const Value& argument : arguments) {
        m_arguments.emplace_back(argument);
    }
}

Text Message::name() const noexcept {
    return toText(m_name);
}

std::int32_t Message::countArguments() const noexcept {
    return static_cast<std::int32_t>(m_arguments.size());
}

Value Message::argument(std::int32_t index) const noexcept {
    return index >= 0 && index < countArguments() ? m_arguments[static_cast<std::size_t>(index)].value()
                                                  : noValue();
}

bool isNamed(const IMessage& message, std::string_view name) noexcept {
    return view(message.name()) == name;
}

void signal(ISubject& subject, std::string_view name, std::initializer_list<Value> arguments) {
    const auto message = make<Message>(name, arguments);
    XBRGetSignalHandler()->signal(&subject, message.get());
}

void postSignal(ISubject& subject, std::string_view name) {
    const auto message = make<Message>(name);
    XBRGetSignalHandler()->postSignal(&subject, message.get());
}

void post(IObserver& observer, std::string_view name, std::int32_t delay) {
    const auto message = make<Message>(name);
    XBRGetSignalHandler()->post(&observer, message.get(), delay);
}

} // namespace xbr
