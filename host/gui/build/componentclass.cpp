#include "host/gui/build/componentclass.h"

#include "framework/abi/pluginmanager.h"
#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"

namespace xbr::host {

namespace {

ComponentSettings& componentSettings() {
    static ComponentSettings settings;
    return settings;
}

Ref<IController> createByName(std::string_view name) {
    IPlugInManager& classes = *XBRGetPlugInManager();
    const Text category = toText("Component");
    for (std::int32_t i = 0; const auto* description = classes.classAt(category, i, nullptr); ++i) {
        void* created = nullptr;
        if (view(description->name) == name &&
            classes.createInstance(description->uid, IController::kUid, &created) == kOk) {
            return Ref<IController>::adopt(static_cast<IController*>(created));
        }
    }
    return {};
}

} // namespace

void setComponentSettings(ComponentSettings settings) {
    componentSettings() = std::move(settings);
}

Ref<IController> createComponentByName(std::string_view name, std::string_view module) {
    auto component = createByName(name);
    const auto properties = query<IPropertySource>(component.get());
    if (properties && componentSettings()) {
        for (const auto& [property, value] : componentSettings()(module, name)) {
            properties->setProperty(toText(property), textValue(value));
        }
    }
    return component;
}

} // namespace xbr::host
