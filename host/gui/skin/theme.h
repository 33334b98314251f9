#pragma once

#include "framework/abi/view.h"
#include "framework/support/objects/object.h"
#include "host/gui/skin/skin.h"

#include <memory>

namespace xbr::host {

/// The skin of a module.
class Theme final : public Object<ITheme> {
public:
    Result load(Text folder) noexcept override;
    bool hasForm(Text name) const noexcept override;
    Result createView(Text form, IController* controller, IView** out) noexcept override;

private:
    std::shared_ptr<const Skin> m_skin = std::make_shared<Skin>(); ///< shared with the views
};

} // namespace xbr::host
