#include "framework/support/objects/value.h"

#include "framework/support/objects/text.h"

#include <cmath>
#include <limits>

namespace xbr {

Value noValue() noexcept {
    return Value{};
}

Value boolValue(bool value) noexcept {
    Value result{};
    result.kind = ValueKind::kBool;
    result.boolean = value;
    return result;
}

Value integerValue(std::int64_t value) noexcept {
    Value result{};
    result.kind = ValueKind::kInteger;
    result.integer = value;
    return result;
}

Value floatValue(double value) noexcept {
    Value result{};
    result.kind = ValueKind::kFloat;
    result.number = value;
    return result;
}

Value textValue(std::string_view value) noexcept {
    Value result{};
    result.kind = ValueKind::kText;
    result.text = toText(value);
    return result;
}

Value objectValue(IObject* value) noexcept {
    Value result{};
    result.kind = ValueKind::kObject;
    result.object = value;
    return result;
}

std::string_view textOf(const Value& value) noexcept {
    return value.kind == ValueKind::kText ? view(value.text) : std::string_view();
}

namespace {

std::int64_t truncate(double number) noexcept {
    using Limits = std::numeric_limits<std::int64_t>;
    if (std::isnan(number)) {
        return 0;
    }
    if (number >= 9223372036854775808.0) {
        return Limits::max();
    }
    return number <= -9223372036854775808.0 ? Limits::min() : static_cast<std::int64_t>(number);
}

} // namespace

std::int64_t integerOf(const Value& value, std::int64_t otherwise) noexcept {
    switch (value.kind) {
    case ValueKind::kBool:
        return value.boolean ? 1 : 0;
    case ValueKind::kInteger:
        return value.integer;
    case ValueKind::kFloat:
        return truncate(value.number);
    default:
        return otherwise;
    }
}

double numberOf(const Value& value) noexcept {
    return value.kind == ValueKind::kFloat ? value.number : static_cast<double>(integerOf(value));
}

OwnedValue::OwnedValue(const Value& value) {
    switch (value.kind) {
    case ValueKind::kBool:
        m_held = value.boolean;
        break;
    case ValueKind::kInteger:
        m_held = value.integer;
        break;
    case ValueKind::kFloat:
        m_held = value.number;
        break;
    case ValueKind::kText:
        m_held = toString(value.text);
        break;
    case ValueKind::kObject:
        m_held = Ref<IObject>::share(value.object);
        break;
    default:
        break;
    }
}

Value OwnedValue::value() const noexcept {
    struct Borrow {
        Value operator()(std::monostate) const noexcept { return noValue(); }
        Value operator()(bool held) const noexcept { return boolValue(held); }
        Value operator()(std::int64_t held) const noexcept { return integerValue(held); }
        Value operator()(double held) const noexcept { return floatValue(held); }
        Value operator()(const std::string& held) const noexcept { return textValue(held); }
        Value operator()(const Ref<IObject>& held) const noexcept { return objectValue(held.get()); }
    };
    return std::visit(Borrow{}, m_held);
}

} // namespace xbr
