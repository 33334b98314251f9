#pragma once

#include "framework/abi/value.h"

namespace xbr {

struct IAttributeQueue;

/// A node of a tree of named values, in the order in which they were first set. A value of kind kObject is
/// another IAttributes or an IAttributeQueue.
struct IAttributes : IObject {
    static constexpr Uid kUid = uid("f494c3f7-d084-4a4d-aac5-ba6beb5ae372");

    virtual std::int32_t count() const noexcept = 0;

    /// Name of entry `index`, 0 to count() - 1; otherwise the empty text.
    virtual Text nameAt(std::int32_t index) const noexcept = 0;

    /// Looks a value up. kOk with *out set, or kFalse with *out of kind kNone.
    virtual Result get(Text name, Value* out) const noexcept = 0;

    /// Sets a value: copied, an object kept. An entry of that name keeps its place.
    virtual Result set(Text name, const Value& value) noexcept = 0;

    /// Sets `name` to a new empty node, handed over for filling.
    virtual Result addAttributes(Text name, IAttributes** out) noexcept = 0;

    /// Sets `name` to a new empty array, handed over for filling.
    virtual Result addQueue(Text name, IAttributeQueue** out) noexcept = 0;
};

/// An array of such a tree.
struct IAttributeQueue : IObject {
    static constexpr Uid kUid = uid("9d7e6fdf-841a-4e00-b020-3cf7807acf60");

    virtual std::int32_t count() const noexcept = 0;

    /// Element `index`, 0 to count() - 1; otherwise kInvalidArgument.
    virtual Result at(std::int32_t index, Value* out) const noexcept = 0;

    /// Appends a value: copied, an object kept.
    virtual Result append(const Value& value) noexcept = 0;

    /// Appends a new empty node, handed over for filling.
    virtual Result appendAttributes(IAttributes** out) noexcept = 0;

    /// Appends a new empty array, handed over for filling.
    virtual Result appendQueue(IAttributeQueue** out) noexcept = 0;
};

} // namespace xbr
