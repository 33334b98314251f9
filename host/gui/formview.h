#pragma once

#include "framework/abi/view.h"
#include "framework/support/object.h"

#include <string>

namespace xbr::host {

/// One showing of a form of a skin. The controller knows of the view for as long as it lives.
class FormView final : public Object<IView> {
public:
    /// `form` is the Designer description of the form.
    FormView(std::string name, std::string form, Ref<IController> controller);
    ~FormView() override;

    Text formName() const noexcept override;
    IController* controller() noexcept override { return m_controller.get(); }

    const std::string& form() const { return m_form; }

private:
    std::string m_name;
    std::string m_form;
    Ref<IController> m_controller;
};

} // namespace xbr::host
