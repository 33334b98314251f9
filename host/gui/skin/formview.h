#pragma once

#include "framework/abi/view.h"
#include "framework/support/objects/object.h"
#include "host/gui/skin/skin.h"

#include <functional>
#include <memory>
#include <string>

namespace xbr::host {

/// One showing of a form of a skin. The controller knows of the view for as long as it lives. Needs no
/// window: a widget is made from it where there are any (hostwidgets.h).
class FormView final : public Object<IView, IShow> {
public:
    /// The class itself, for telling it from views of other makers.
    static constexpr Uid kClassUid = uid("0a6c3a4e-6d5b-44ad-9d53-6a1bd3e4f1c7");

    FormView(std::shared_ptr<const Skin> skin, std::string form, Ref<IController> controller);
    ~FormView() override;

    /// The form view behind a view; null for a view of another maker. Borrowed.
    static FormView* from(IView& view);

    Result queryInterface(const Uid& interfaceUid, void** out) noexcept override;
    Text formName() const noexcept override;
    IController* controller() noexcept override { return m_controller.get(); }

    /// kFalse while no widget shows the view.
    Result show() noexcept override;

    const std::shared_ptr<const Skin>& skin() const { return m_skin; }

    /// What brings the view to the user's sight; empty for nothing.
    void setShowAction(std::function<void()> action) { m_show = std::move(action); }

private:
    std::shared_ptr<const Skin> m_skin;
    std::string m_form;
    Ref<IController> m_controller;
    std::function<void()> m_show;
};

} // namespace xbr::host
