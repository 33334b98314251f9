#pragma once

#include "framework/abi/object.h"

namespace xbr {

/// UTF-8 text, borrowed. Not zero-terminated.
struct Text {
    const char* data;
    std::uint64_t length; ///< bytes
};

/// A text that is handed over. Immutable.
struct IString : IObject {
    static constexpr Uid kUid = uid("ac79e6a9-0be1-4753-aa09-216c5a423c48");

    /// The bytes; valid as long as this object lives.
    virtual Text text() const noexcept = 0;
};

} // namespace xbr
