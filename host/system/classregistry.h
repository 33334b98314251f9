#pragma once

#include "framework/abi/pluginmanager.h"
#include "framework/support/objects/object.h"

#include <vector>

namespace xbr::host {

/// Finds classes in the factories that were added.
class PlugInManager final : public Object<IPlugInManager> {
public:
    Result createInstance(const Uid& classUid, const Uid& interfaceUid, void** out) noexcept override;
    Result addFactory(IClassFactory* factory) noexcept override;
    Result removeFactory(IClassFactory* factory) noexcept override;
    std::int32_t countClasses(Text category) const noexcept override;
    const ClassDescription* classAt(Text category, std::int32_t index,
                                    const IAttributes** attributes) const noexcept override;

private:
    /// The factory that answers for a class: the last one added that describes it; null when none does.
    IClassFactory* factoryOf(const Uid& classUid) const noexcept;

    /// Calls `visitor(factory, index, description)` for each class of a category until it answers true. A
    /// class that a later factory describes, too, comes only once.
    template <class Visitor>
    void visit(Text category, Visitor visitor) const;

    std::vector<Ref<IClassFactory>> m_factories;
};

} // namespace xbr::host
