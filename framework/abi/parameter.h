#pragma once

#include "framework/abi/message.h"

namespace xbr {

enum class ParameterKind : std::int32_t {
    kPlain = 0,   ///< any value; setting it acts each time
    kCommand = 1, ///< performed by setting it to 1; reads 0
    kToggle = 2,  ///< 0 or 1
    kInteger = 3, ///< minimum() to maximum()
    kText = 4,    ///< free text
    kList = 5,    ///< index of one of countChoices() texts
};

/// A value or command of a controller that forms bind to by name.
///
/// A parameter is also an ISubject: "changed" is signalled when its value, its choices or its enabling
/// changed.
struct IParameter : IObject {
    static constexpr Uid kUid = uid("3229bddc-1958-4f5a-a36f-c53e63999bc0");

    virtual std::int32_t tag() const noexcept = 0;
    virtual Text name() const noexcept = 0;
    virtual ParameterKind kind() const noexcept = 0;
    virtual Value value() const noexcept = 0;
    virtual bool isEnabled() const noexcept = 0;

    virtual std::int64_t minimum() const noexcept = 0;
    virtual std::int64_t maximum() const noexcept = 0;

    /// Number of choices of a kList parameter; 0 for other kinds.
    virtual std::int32_t countChoices() const noexcept = 0;
    virtual Text choiceAt(std::int32_t index) const noexcept = 0;

    /// What the user set. The value is converted to the parameter's kind and held to its range; the
    /// controller then acts on it. kFalse when the parameter is disabled or the value is the one it has
    /// already (a command is always performed); kInvalidArgument when the value cannot be converted.
    virtual Result setValue(const Value& value) noexcept = 0;
};

} // namespace xbr
