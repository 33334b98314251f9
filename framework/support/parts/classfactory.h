#pragma once

#include "framework/abi/module.h"
#include "framework/support/data/attributes.h"
#include "framework/support/objects/text.h"

#include <functional>
#include <vector>

namespace xbr {

/// A list of classes with their creators.
class ClassFactory : public Object<IClassFactory> {
public:
    /// Makes one instance; empty when it cannot be made.
    using Creator = std::function<Ref<IObject>()>;

    /// Tells whether instances may be created at the moment.
    using Gate = bool (*)();

    explicit ClassFactory(Gate gate = nullptr) : m_gate(gate) {}

    /// Adds a class. The description must live as long as this factory.
    void add(const ClassDescription& description, Creator creator, Ref<Attributes> attributes = {});

    std::uint32_t borderVersion() const noexcept override { return kBorderVersion; }
    std::int32_t countClasses() const noexcept override;
    const ClassDescription* classAt(std::int32_t index) const noexcept override;
    const IAttributes* attributesAt(std::int32_t index) const noexcept override;
    Result createInstance(const Uid& classUid, const Uid& interfaceUid, void** out) noexcept override;

private:
    struct Entry {
        const ClassDescription* description;
        Creator creator;
        Ref<Attributes> attributes;
    };
    const Entry* entryAt(std::int32_t index) const noexcept;

    Gate m_gate;
    std::vector<Entry> m_entries;
};

/// The description of a class; the texts are literals.
inline ClassDescription describe(const Uid& uid, std::string_view category, std::string_view name) {
    return {0, uid, toText(category), toText(name), {}, {}};
}

/// A creator of objects of class T.
template <class T>
ClassFactory::Creator creatorOf() {
    return [] {
        const auto instance = make<T>();
        return query<IObject>(instance.get());
    };
}

} // namespace xbr
