#include "framework/support/parts/classfactory.h"

namespace xbr {

void ClassFactory::add(const ClassDescription& description, Creator creator, Ref<Attributes> attributes) {
    m_entries.push_back({&description, std::move(creator), std::move(attributes)});
}

std::int32_t ClassFactory::countClasses() const noexcept {
    return static_cast<std::int32_t>(m_entries.size());
}

const ClassFactory::Entry* ClassFactory::entryAt(std::int32_t index) const noexcept {
    return index >= 0 && index < countClasses() ? &m_entries[static_cast<std::size_t>(index)] : nullptr;
}

const ClassDescription* ClassFactory::classAt(std::int32_t index) const noexcept {
    const Entry* entry = entryAt(index);
    return entry ? entry->description : nullptr;
}

const IAttributes* ClassFactory::attributesAt(std::int32_t index) const noexcept {
    const Entry* entry = entryAt(index);
    return entry ? entry->attributes.get() : nullptr;
}

Result ClassFactory::createInstance(const Uid& classUid, const Uid& interfaceUid, void** out) noexcept {
    *out = nullptr;
    if (m_gate && !m_gate()) {
        return kUnexpected;
    }
    for (const Entry& entry : m_entries) {
        if (entry.description->uid == classUid) {
            const Ref<IObject> instance = entry.creator();
            return instance ? instance->queryInterface(interfaceUid, out) : kNoInterface;
        }
    }
    return kNoInterface;
}

} // namespace xbr
