#include "host/gui/skin/formview.h"

#include "framework/support/objects/text.h"

namespace xbr::host {

FormView::FormView(std::shared_ptr<const Skin> skin, std::string form, Ref<IController> controller)
    : m_skin(std::move(skin)),
      m_form(std::move(form)),
      m_controller(std::move(controller)) {
    if (m_controller) {
        m_controller->viewAttached(this);
    }
}

FormView::~FormView() {
    if (m_controller) {
        m_controller->viewDetached(this);
    }
}

FormView* FormView::from(IView& view) {
    void* found = nullptr;
    if (view.queryInterface(kClassUid, &found) != kOk) {
        return nullptr;
    }
    view.release(); // the caller's reference is enough
    return static_cast<FormView*>(found);
}

Result FormView::queryInterface(const Uid& interfaceUid, void** out) noexcept {
    return interfaceUid == kClassUid ? answer(this, out)
                                     : Object<IView, IShow>::queryInterface(interfaceUid, out);
}

Text FormView::formName() const noexcept {
    return toText(m_form);
}

Result FormView::show() noexcept {
    const auto action = m_show; // a copy: the widget may go in there
    if (!action) {
        return kFalse;
    }
    action();
    return kOk;
}

} // namespace xbr::host
