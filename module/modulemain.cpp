#include "framework/abi/module.h"
#include "framework/abi/system.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/classfactory.h"
#include "framework/support/parts/modulecomponent.h"
#include "module/classtable.h"
#include "module/componentclasses.h"
#include "module/modulekernel.h"
#include "module/resources.h"
#include "module/supportservice.h"

#include <array>

namespace brindlex {

namespace {

ModuleKernel& kernel();

/// What the module does at start (1) and stop (2).
bool startModule(std::int32_t argument) {
    if (argument != 1) {
        return true;
    }
    const auto component = xbr::make<xbr::ModuleComponent>("brindlex", "Kestrova", "Brindlex Support", "");
    kernel().addObject(xbr::query<xbr::IObject>(component.get()));
    if (!component->loadTheme("")) {
        XBRGetSystem()->writeDebugWarning(xbr::toText("ModuleComponent::loadTheme failed\n"));
        return false;
    }
    return true;
}

/// In the order in which they begin.
constexpr std::array<ModulePart, 2> kParts{{
    {&registerResources, &unregisterResources},
    {&addComponentClasses, &removeComponentClasses},
}};

ModuleKernel& kernel() {
    static const auto instance = xbr::make<ModuleKernel>(kParts, &startModule);
    return *instance;
}

/// The module's factory, which also tells the module's version.
class ModuleFactory final : public xbr::Implements<xbr::ClassFactory, xbr::IModuleInfo> {
public:
    ModuleFactory() : Implements(&isModuleLoaded) {
        add(supportServiceClass(), xbr::creatorOf<SupportService>());
    }

    xbr::Text version() const noexcept override { return xbr::toText(BRINDLEX_VERSION); }
};

} // namespace

bool isModuleLoaded() {
    const auto* component = xbr::ModuleComponent::current();
    return component && component->theme();
}

} // namespace brindlex

std::int32_t XBRModuleMain(void* moduleHandle, std::int32_t reason) noexcept {
    auto& kernel = brindlex::kernel();
    switch (static_cast<xbr::ModuleReason>(reason)) {
    case xbr::ModuleReason::kLoad:
        return kernel.load(moduleHandle) ? 1 : 0;
    case xbr::ModuleReason::kUnload:
        kernel.unload();
        return 1;
    default:
        return 1;
    }
}

xbr::IClassFactory* XBRGetClassFactory() noexcept {
    static const auto factory = xbr::make<brindlex::ModuleFactory>();
    return factory.get();
}
