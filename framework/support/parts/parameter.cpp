#include "framework/support/parts/parameter.h"

#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"

#include <algorithm>

namespace xbr {

Parameter::Parameter(IParameterOwner& owner, ParameterKind kind, std::int32_t tag, std::string_view name,
                     std::int64_t minimum, std::int64_t maximum)
    : m_owner(&owner),
      m_kind(kind),
      m_tag(tag),
      m_name(name),
      m_minimum(minimum),
      m_maximum(maximum),
      m_value(kind == ParameterKind::kText ? textValue("")
                                           : integerValue(kind == ParameterKind::kInteger ? minimum : 0)) {}

Parameter::~Parameter() {
    XBRGetSignalHandler()->forgetSubject(this);
}

Text Parameter::name() const noexcept {
    return toText(m_name);
}

std::int64_t Parameter::maximum() const noexcept {
    return m_kind == ParameterKind::kList ? std::max(countChoices() - 1, 0) : m_maximum;
}

Text Parameter::choiceAt(std::int32_t index) const noexcept {
    return index >= 0 && index < countChoices() ? toText(m_choices[static_cast<std::size_t>(index)]) : Text{};
}

bool Parameter::convert(const Value& value, OwnedValue& converted) const {
    if (m_kind == ParameterKind::kPlain) {
        converted = OwnedValue(value);
        return true;
    }
    const bool isText = value.kind == ValueKind::kText;
    if (m_kind == ParameterKind::kText) {
        converted = OwnedValue(value);
        return isText;
    }
    if (isText || value.kind == ValueKind::kNone || value.kind == ValueKind::kObject) {
        return false;
    }
    const auto number = integerOf(value);
    const bool isSwitch = m_kind == ParameterKind::kToggle || m_kind == ParameterKind::kCommand;
    converted =
        OwnedValue(integerValue(isSwitch ? (number != 0 ? 1 : 0) : std::clamp(number, m_minimum, maximum())));
    return true;
}

Result Parameter::setValue(const Value& value) noexcept {
    OwnedValue converted;
    if (!convert(value, converted)) {
        return kInvalidArgument;
    }
    const bool isCommand = m_kind == ParameterKind::kCommand;
    const bool acts = isCommand ? integerOf(converted.value()) != 0
                                : m_kind == ParameterKind::kPlain || converted != m_value;
    if (!m_enabled || !acts) {
        return kFalse;
    }
    // The owner may drop the parameter while it acts on it.
    const auto self = Ref<Parameter>::share(this);
    if (!isCommand) {
        m_value = std::move(converted);
    }
    // Before the observers: one of them may set the next value, and each value is acted on once.
    if (m_owner) {
        m_owner->parameterChanged(*this);
    }
    if (!isCommand) {
        signalChanged();
    }
    return kOk;
}

void Parameter::set(const Value& value, Notify notify) {
    OwnedValue converted;
    if (!convert(value, converted) || converted == m_value) {
        return;
    }
    m_value = std::move(converted);
    if (notify == Notify::kObservers) {
        signalChanged();
    }
}

void Parameter::setEnabled(bool enabled) {
    if (m_enabled != enabled) {
        m_enabled = enabled;
        signalChanged();
    }
}

void Parameter::setChoices(std::vector<std::string> choices) {
    m_choices = std::move(choices);
    if (m_kind == ParameterKind::kList) {
        m_value = OwnedValue(integerValue(std::min(integer(), maximum())));
    }
    signalChanged();
}

void Parameter::signalChanged() {
    signal(*this, "changed");
}

} // namespace xbr
