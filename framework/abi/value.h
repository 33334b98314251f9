#pragma once

#include "framework/abi/text.h"

namespace xbr {

enum class ValueKind : std::int32_t {
    kNone = 0, ///< no value; null in JSON
    kBool = 1,
    kInteger = 2,
    kFloat = 3,
    kText = 4,
    kObject = 5,
};

/// One value of a parameter, a property, a message or an attribute. Only the member that `kind` names is
/// meaningful. Text and object are borrowed: from the caller during the call when the value goes in, from the
/// object that answered it until the next call into that object when it comes out.
struct Value {
    ValueKind kind;
    bool boolean;
    std::int64_t integer;
    double number;
    Text text;
    IObject* object;
};

} // namespace xbr
