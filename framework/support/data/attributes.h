#pragma once

#include "framework/abi/attributes.h"
#include "framework/abi/stream.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/value.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace xbr {

class AttributeQueue;

/// A node of a tree of named values; the order of insertion is kept.
class Attributes final : public Object<IAttributes> {
public:
    std::int32_t count() const noexcept override;
    Text nameAt(std::int32_t index) const noexcept override;
    Result get(Text name, Value* out) const noexcept override;
    Result set(Text name, const Value& value) noexcept override;
    Result addAttributes(Text name, IAttributes** out) noexcept override;
    Result addQueue(Text name, IAttributeQueue** out) noexcept override;

    void set(std::string_view name, const Value& value);
    void set(std::string_view name, std::string_view text) { set(name, textValue(text)); }

    /// The value of a name, borrowed; of kind kNone when it is absent.
    Value get(std::string_view name) const;

    /// The text of a name; empty when it is absent or no text.
    std::string getString(std::string_view name) const;

private:
    struct Entry {
        std::string name;
        OwnedValue value;
    };
    const Entry* find(std::string_view name) const;

    std::vector<Entry> m_entries;
    std::unordered_map<std::string, std::size_t> m_index; ///< documents from outside may have very many names
};

/// An array of such a tree.
class AttributeQueue final : public Object<IAttributeQueue> {
public:
    std::int32_t count() const noexcept override;
    Result at(std::int32_t index, Value* out) const noexcept override;
    Result append(const Value& value) noexcept override;
    Result appendAttributes(IAttributes** out) noexcept override;
    Result appendQueue(IAttributeQueue** out) noexcept override;

private:
    std::vector<OwnedValue> m_values;
};

/// Reads a JSON object from the stream's position; empty when there is none.
Ref<Attributes> readJson(IStream& stream);

/// Writes a tree as JSON; false when the stream does not take it.
bool writeJson(const Attributes& root, IStream& stream);

} // namespace xbr
