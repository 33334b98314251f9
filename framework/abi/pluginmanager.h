#pragma once

#include "framework/abi/module.h"

namespace xbr {

/// Creates objects by class UID, whoever implements the class: the host's libraries, the host program or a
/// module.
struct IPlugInManager : IObject {
    static constexpr Uid kUid = uid("900cf9e3-3d92-46a5-8a54-e231db2f4035");

    /// Creates an instance, handed over. kNoInterface: nobody offers the class, or it lacks the interface.
    virtual Result createInstance(const Uid& classUid, const Uid& interfaceUid, void** out) noexcept = 0;

    /// Adds the classes of a factory; kept until removed. When two factories describe the same class UID the
    /// one added later wins. kFalse when it is there already.
    virtual Result addFactory(IClassFactory* factory) noexcept = 0;
    virtual Result removeFactory(IClassFactory* factory) noexcept = 0;

    /// Classes of a category ("Publisher", ...), in the order in which they were added.
    virtual std::int32_t countClasses(Text category) const noexcept = 0;

    /// Class `index` of a category, null beyond the last; *attributes (may be null) receives the borrowed
    /// attributes or null.
    virtual const ClassDescription* classAt(Text category, std::int32_t index,
                                            const IAttributes** attributes) const noexcept = 0;
};

} // namespace xbr

/// Answers the one plug-in manager. Never null.
XBR_API xbr::IPlugInManager* XBRGetPlugInManager() noexcept;
