#include "host/gui/formview.h"

#include "framework/support/text.h"

namespace xbr::host {

FormView::FormView(std::string name, std::string form, Ref<IController> controller)
    : m_name(std::move(name)),
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

Text FormView::formName() const noexcept {
    return toText(m_name);
}

} // namespace xbr::host
