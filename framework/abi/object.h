#pragma once

#include "framework/abi/border.h"
#include "framework/abi/result.h"
#include "framework/abi/uid.h"

namespace xbr {

/// Root of all interfaces: a reference-counted object that can be asked for its other interfaces.
///
/// The count starts at one: who creates an object owns that one reference. Implementations keep an object
/// alive until its last reference is released and destroy it within that release.
struct IObject {
    static constexpr Uid kUid = uid("b827331a-7a50-4643-81c6-368232a08350");

    /// Asks for another interface of the same object. Answers kOk and hands over a reference through *out, or
    /// kNoInterface and null. The IObject that an object answers is the same pointer each time: its identity.
    virtual Result queryInterface(const Uid& interfaceUid, void** out) noexcept = 0;

    /// Adds a reference and answers the new count.
    virtual std::uint32_t retain() noexcept = 0;

    /// Gives one reference back and answers the new count; at 0 the object is gone.
    virtual std::uint32_t release() noexcept = 0;

protected:
    ~IObject() = default;
};

} // namespace xbr
