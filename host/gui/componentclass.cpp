#include "host/gui/componentclass.h"

#include "framework/abi/pluginmanager.h"
#include "framework/support/text.h"

namespace xbr::host {

Ref<IController> createComponentByName(std::string_view name) {
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

} // namespace xbr::host
