#include "host/gui/theme.h"

#include "framework/support/text.h"
#include "host/gui/formview.h"

namespace xbr::host {

Result Theme::load(Text folder) noexcept {
    switch (readSkin(view(folder), m_skin)) {
    case SkinResult::kRead:
        return kOk;
    case SkinResult::kMissing:
        return kFalse;
    case SkinResult::kUnreadable:
        break;
    }
    return kInvalidArgument;
}

bool Theme::hasForm(Text name) const noexcept {
    return m_skin.forms.find(view(name)) != m_skin.forms.end();
}

Result Theme::createView(Text form, IController* controller, IView** out) noexcept {
    *out = nullptr;
    if (!controller) {
        return kInvalidArgument;
    }
    const auto found = m_skin.forms.find(view(form));
    if (found == m_skin.forms.end()) {
        return kFalse;
    }
    *out = make<FormView>(found->first, found->second, Ref<IController>::share(controller)).detach();
    return kOk;
}

} // namespace xbr::host
