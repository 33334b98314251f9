#pragma once

#include "framework/abi/view.h"
#include "framework/support/object.h"
#include "host/gui/skin.h"

namespace xbr::host {

/// The skin of a module.
class Theme final : public Object<ITheme> {
public:
    Result load(Text folder) noexcept override;
    bool hasForm(Text name) const noexcept override;
    Result createView(Text form, IController* controller, IView** out) noexcept override;

    /// For the windows that show the views; empty when the skin has none.
    const std::string& styleSheet() const { return m_skin.styleSheet; }

private:
    Skin m_skin;
};

} // namespace xbr::host
