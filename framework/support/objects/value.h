#pragma once

#include "framework/abi/value.h"
#include "framework/support/objects/ref.h"

#include <string>
#include <string_view>
#include <variant>

namespace xbr {

/// Values for a call across the border. What they refer to must outlive the call.
Value noValue() noexcept;
Value boolValue(bool value) noexcept;
Value integerValue(std::int64_t value) noexcept;
Value floatValue(double value) noexcept;
Value textValue(std::string_view value) noexcept;
Value objectValue(IObject* value) noexcept;

/// The text of a value, empty when it is of another kind.
std::string_view textOf(const Value& value) noexcept;

/// The integer of a value: an integer as it is, a bool as 0 or 1, a number truncated toward zero (and held to
/// the range of the type), anything else `otherwise`.
std::int64_t integerOf(const Value& value, std::int64_t otherwise = 0) noexcept;

/// The number of a value: integers are converted; anything not numeric is 0.
double numberOf(const Value& value) noexcept;

/// A value that owns what it holds.
class OwnedValue {
public:
    OwnedValue() = default;
    explicit OwnedValue(const Value& value);

    /// Borrowed from this object.
    Value value() const noexcept;

    friend bool operator==(const OwnedValue&, const OwnedValue&) = default;

private:
    std::variant<std::monostate, bool, std::int64_t, double, std::string, Ref<IObject>> m_held;
};

} // namespace xbr
