#pragma once

#include "framework/abi/pluginmanager.h"
#include "framework/support/objects/ref.h"

namespace xbr {

/// Creates an object of a class of the host, by the class UID of its interface; empty when the host does not
/// offer it.
template <class Interface>
[[nodiscard]] Ref<Interface> createHostObject() {
    void* created = nullptr;
    const Result result =
        XBRGetPlugInManager()->createInstance(Interface::kClassUid, Interface::kUid, &created);
    return Ref<Interface>::adopt(result == kOk ? static_cast<Interface*>(created) : nullptr);
}

} // namespace xbr
