#include "framework/support/data/attributes.h"

#include "framework/abi/textformats.h"
#include "framework/support/objects/text.h"

namespace xbr {

std::int32_t Attributes::count() const noexcept {
    return static_cast<std::int32_t>(m_entries.size());
}

Text Attributes::nameAt(std::int32_t index) const noexcept {
    return index >= 0 && index < count() ? toText(m_entries[static_cast<std::size_t>(index)].name) : Text{};
}

const Attributes::Entry* Attributes::find(std::string_view name) const {
    const auto found = m_index.find(std::string(name));
    return found == m_index.end() ? nullptr : &m_entries[found->second];
}

Result Attributes::get(Text name, Value* out) const noexcept {
    const Entry* entry = find(view(name));
    *out = entry ? entry->value.value() : noValue();
    return entry ? kOk : kFalse;
}

Result Attributes::set(Text name, const Value& value) noexcept {
    const auto [place, isNew] = m_index.try_emplace(toString(name), m_entries.size());
    if (isNew) {
        m_entries.push_back({toString(name), OwnedValue(value)});
    } else {
        m_entries[place->second].value = OwnedValue(value);
    }
    return kOk;
}

Result Attributes::addAttributes(Text name, IAttributes** out) noexcept {
    auto child = make<Attributes>();
    set(name, objectValue(child.get()));
    *out = child.detach();
    return kOk;
}

Result Attributes::addQueue(Text name, IAttributeQueue** out) noexcept {
    auto child = make<AttributeQueue>();
    set(name, objectValue(child.get()));
    *out = child.detach();
    return kOk;
}

void Attributes::set(std::string_view name, const Value& value) {
    set(toText(name), value);
}

Value Attributes::get(std::string_view name) const {
    Value value{};
    get(toText(name), &value);
    return value;
}

std::string Attributes::getString(std::string_view name) const {
    return std::string(textOf(get(name)));
}

std::int32_t AttributeQueue::count() const noexcept {
    return static_cast<std::int32_t>(m_values.size());
}

Result AttributeQueue::at(std::int32_t index, Value* out) const noexcept {
    if (index < 0 || index >= count()) {
        *out = noValue();
        return kInvalidArgument;
    }
    *out = m_values[static_cast<std::size_t>(index)].value();
    return kOk;
}

Result AttributeQueue::append(const Value& value) noexcept {
    m_values.emplace_back(value);
    return kOk;
}

Result AttributeQueue::appendAttributes(IAttributes** out) noexcept {
    auto child = make<Attributes>();
    append(objectValue(child.get()));
    *out = child.detach();
    return kOk;
}

Result AttributeQueue::appendQueue(IAttributeQueue** out) noexcept {
    auto child = make<AttributeQueue>();
    append(objectValue(child.get()));
    *out = child.detach();
    return kOk;
}

Ref<Attributes> readJson(IStream& stream) {
    auto root = make<Attributes>();
    return XBRJsonParse(&stream, root.get()) == kOk ? root : nullptr;
}

bool writeJson(const Attributes& root, IStream& stream) {
    return XBRJsonStringify(&root, &stream) == kOk;
}

} // namespace xbr
