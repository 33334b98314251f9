#include "host/gui/skin/theme.h"

#include "framework/support/objects/text.h"
#include "host/gui/skin/formview.h"

namespace xbr::host {

Result Theme::load(Text folder) noexcept {
    Skin skin;
    switch (readSkin(view(folder), skin)) {
    case SkinResult::kRead:
        m_skin = std::make_shared<const Skin>(std::move(skin));
        return kOk;
    case SkinResult::kMissing:
        return kFalse;
    case SkinResult::kUnreadable:
        break;
    }
    return kInvalidArgument;
}

bool Theme::hasForm(Text name) const noexcept {
    return m_skin->forms.find(view(name)) != m_skin->forms.end();
}

Result Theme::createView(Text form, IController* controller, IView** out) noexcept {
    *out = nullptr;
    if (!controller) {
        return kInvalidArgument;
    }
    if (!hasForm(form)) {
        return kFalse;
    }
    *out = make<FormView>(m_skin, toString(form), Ref<IController>::share(controller)).detach();
    return kOk;
}

} // namespace xbr::host
