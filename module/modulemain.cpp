#include "framework/abi/module.h"
#include "framework/abi/system.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/classfactory.h"
#include "framework/support/parts/modulecomponent.h"
#include "module/classtable.h"
#include "module/componentclasses.h"
#include "module/modulegate.h"
#include "module/modulekernel.h"
#include "module/resources.h"
#include "module/supportservice.h"

#include <array>

namespace brindlex {

namespace {

/// A part of the module with what it does before the start and after the stop.
struct Part {
    ModuleKernel::InitialiseFunction initialise;
    ModuleKernel::TerminateFunction terminate;
};

/// In the order in which they begin; they end in the reverse one.
constexpr std::array<Part, 2> kParts{{
    {&registerResources, &unregisterResources},
    {&addComponentClasses, &removeComponentClasses},
}};

ModuleKernel& preparedKernel() {
    static ModuleKernel& kernel = []() -> ModuleKernel& {
        auto& fresh = ModuleKernel::instance();
        for (const Part& part : kParts) {
            fresh.addInitialise(part.initialise);
            fresh.addTerminate(part.terminate);
        }
        return fresh;
    }();
    return kernel;
}

/// What the module does at start (1) and stop (2).
bool startModule(std::int32_t argument) {
    if (argument != 1) {
        return true;
    }
    const auto component = xbr::make<xbr::ModuleComponent>("brindlex", "Kestrova", "Brindlex Support", "");
    ModuleKernel::instance().addObject(xbr::query<xbr::IObject>(component.get()));
    if (!component->loadTheme("")) {
        XBRGetSystem()->writeDebugWarning(xbr::toText("ModuleComponent::loadTheme failed\n"));
        return false;
    }
    return true;
}

xbr::Ref<xbr::ClassFactory> makeFactory() {
    auto factory = xbr::make<xbr::ClassFactory>(&isModuleLoaded);
    factory->add(supportServiceClass(), xbr::creatorOf<SupportService>());
    return factory;
}

} // namespace

bool isModuleLoaded() {
    const auto* component = xbr::ModuleComponent::current();
    return component && component->theme();
}

} // namespace brindlex

std::int32_t XBRModuleMain(void* moduleHandle, std::int32_t reason) noexcept {
    auto& kernel = brindlex::preparedKernel();
    switch (static_cast<xbr::ModuleReason>(reason)) {
    case xbr::ModuleReason::kLoad:
        return kernel.load(moduleHandle, &brindlex::startModule) ? 1 : 0;
    case xbr::ModuleReason::kUnload:
        kernel.unload(&brindlex::startModule);
        return 1;
    default:
        return 1;
    }
}

xbr::IClassFactory* XBRGetClassFactory() noexcept {
    static const auto factory = brindlex::makeFactory();
    return factory.get();
}
