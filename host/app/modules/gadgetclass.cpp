#include "host/app/modules/gadgetclass.h"

#include "framework/abi/pluginmanager.h"
#include "framework/abi/publisher.h"
#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"

#include <algorithm>
#include <charconv>

namespace xbr::host {

namespace {

/// The description that the class of a gadget points to; empty when it has none.
Ref<IGadgetDescription> descriptionOf(const IAttributes* attributes) {
    Value metaClass{};
    Uid uid{};
    if (!attributes || attributes->get(toText(kMetaClassAttribute), &metaClass) != kOk ||
        !parseUid(textOf(metaClass), uid)) {
        return {};
    }
    void* created = nullptr;
    XBRGetPlugInManager()->createInstance(uid, IGadgetDescription::kUid, &created);
    return Ref<IGadgetDescription>::adopt(static_cast<IGadgetDescription*>(created));
}

void describe(const IGadgetDescription& description, GadgetClass& gadget) {
    const auto text = [&description](std::string_view name) {
        return toString(description.attribute(toText(name)));
    };
    gadget.themeName = text("themeName");
    gadget.formName = text("formName");
    gadget.iconName = text("iconName");
    gadget.menuIconName = text("menuIconName");
    const std::string priority = text("menuPriority");
    std::from_chars(priority.data(), priority.data() + priority.size(), gadget.menuPriority);
}

} // namespace

std::vector<GadgetClass> findGadgets() {
    static constexpr std::string_view kCategory = "Gadget";
    std::vector<GadgetClass> gadgets;
    for (std::int32_t i = 0; i < XBRGetPlugInManager()->countClasses(toText(kCategory)); ++i) {
        const IAttributes* attributes = nullptr;
        const ClassDescription* found = XBRGetPlugInManager()->classAt(toText(kCategory), i, &attributes);
        GadgetClass gadget;
        gadget.uid = found->uid;
        gadget.name = toString(found->name);
        if (const auto description = descriptionOf(attributes)) {
            describe(*description, gadget);
        }
        gadgets.push_back(std::move(gadget));
    }
    std::stable_sort(gadgets.begin(), gadgets.end(), [](const GadgetClass& left, const GadgetClass& right) {
        return left.menuPriority < right.menuPriority;
    });
    return gadgets;
}

} // namespace xbr::host
