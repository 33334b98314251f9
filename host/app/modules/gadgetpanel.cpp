#include "host/app/modules/gadgetpanel.h"

#include "framework/abi/pluginmanager.h"
#include "framework/abi/publisher.h"
#include "framework/abi/view.h"
#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "framework/support/parts/path.h"

#include <algorithm>
#include <charconv>

namespace xbr::host {

namespace {

/// The description that the class of a gadget points to; empty when it has none.
Ref<IGadgetDescription> descriptionOf(const IAttributes* attributes) {
    Value metaClass{};
    Uid uid{};
    if (!attributes || attributes->get(toText(kMetaClassAttribute), &metaClass) != kOk ||
        !parseUid(textOf(metaClass).data(), textOf(metaClass).size(), uid)) {
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

template <class Interface>
Ref<Interface> create(const Uid& classUid) {
    void* created = nullptr;
    XBRGetPlugInManager()->createInstance(classUid, Interface::kUid, &created);
    return Ref<Interface>::adopt(static_cast<Interface*>(created));
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

/// What the module sees of the panel. Does not keep the controller: the panel does.
class GadgetPanel::View final : public Object<IView, IShow> {
public:
    View(std::string form, IController& controller, std::function<void()> show)
        : m_form(std::move(form)),
          m_controller(&controller),
          m_show(std::move(show)) {}

    Text formName() const noexcept override { return toText(m_form); }
    IController* controller() noexcept override { return m_controller; }
    Result show() noexcept override {
        if (!m_show) {
            return kFalse;
        }
        m_show();
        return kOk;
    }

    void detach() {
        m_controller = nullptr;
        m_show = nullptr;
    }

private:
    std::string m_form;
    IController* m_controller;
    std::function<void()> m_show;
};

Outcome<std::unique_ptr<GadgetPanel>> GadgetPanel::open(const GadgetClass& gadget,
                                                        std::function<void()> show) {
    auto controller = create<IController>(gadget.uid);
    if (!controller) {
        return Problem{Fault::kModule, gadget.name, 0, "cannot make its panel", {}, {}};
    }
    auto panelView = make<View>(gadget.formName, *controller, std::move(show));
    return std::unique_ptr<GadgetPanel>(
        new GadgetPanel(gadget.name, std::move(controller), std::move(panelView)));
}

GadgetPanel::GadgetPanel(std::string name, Ref<IController> controller, Ref<View> view)
    : m_name(std::move(name)),
      m_controller(std::move(controller)),
      m_view(std::move(view)) {
    m_controller->viewAttached(m_view.get());
}

GadgetPanel::~GadgetPanel() {
    m_controller->viewDetached(m_view.get());
    m_view->detach();
}

Ref<IListViewModel> GadgetPanel::tracks() const {
    return findObject<IListViewModel>(*m_controller, "TrackList/tracks");
}

std::int64_t GadgetPanel::numberOfClient(std::string_view property) const {
    const auto client = findObject<IPropertySource>(*m_controller, "Client");
    Value value{};
    return client && client->getProperty(toText(property), &value) == kOk ? integerOf(value) : 0;
}

bool GadgetPanel::isClient(std::string_view property) const {
    return numberOfClient(property) != 0;
}

ClientState GadgetPanel::clientState() const {
    return static_cast<ClientState>(numberOfClient("clientState"));
}

bool GadgetPanel::isAlbum() const {
    const IParameter* mode = findParameter(*m_controller, kAlbumMode);
    return mode && integerOf(mode->value()) != 0;
}

std::string GadgetPanel::text(std::string_view path) const {
    const IParameter* parameter = findParameter(*m_controller, path);
    return parameter ? std::string(textOf(parameter->value())) : std::string();
}

bool GadgetPanel::set(std::string_view path, std::int64_t value) {
    const auto parameter = Ref<IParameter>::share(findParameter(*m_controller, path));
    if (!parameter || !parameter->isEnabled()) {
        return false;
    }
    parameter->setValue(integerValue(value));
    return true;
}

bool GadgetPanel::isEnabled(std::string_view path) const {
    const IParameter* parameter = findParameter(*m_controller, path);
    return parameter && parameter->isEnabled();
}

} // namespace xbr::host
