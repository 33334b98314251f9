#pragma once

#include "framework/abi/controller.h"
#include "framework/abi/locale.h"
#include "framework/support/objects/ref.h"
#include "host/gui/bind/valuesource.h"
#include "host/gui/skin/skin.h"

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

class QWidget;

namespace xbr::host {

/// Makes the widgets of a form and binds them to a controller as their dynamic properties say.
///
/// What cannot be bound is told once, with the form and the path, to developers; the rest of the form works.
class FormBuilder {
public:
    /// Makes the widget of a view that a form embeds; null when it cannot be made.
    using ViewMaker = std::function<QWidget*(IView& view, QWidget* parent)>;

    /// The skin must live as long as this builder. `forms` are those that enclose what is built.
    FormBuilder(const Skin& skin, ViewMaker makeView, std::vector<std::string> forms = {});

    /// `form` is one of the skin's. Null when it cannot be made; a warning says why.
    QWidget* build(const std::string& form, IController& controller, QWidget* parent);

    /// The controllers that the form created for itself; its widgets need them as long as they live.
    std::vector<Ref<IController>> takeComponents() { return std::move(m_components); }

private:
    void bindTree(QWidget& widget, Ref<IController> scope);
    bool enterScope(QWidget& widget, Ref<IController>& scope);
    bool createComponent(QWidget& widget, Ref<IController>& scope);
    void bindWidget(QWidget& widget, IController& scope);
    void bindValues(QWidget& widget, IController& scope);
    void repeatForm(QWidget& widget, IController& scope);
    void embedForm(QWidget& widget, IController& scope);
    void embedView(QWidget& widget, IController& scope);

    /// False, with a warning, for a form that the skin does not have, or that is being built.
    bool canEmbed(const std::string& form);

    /// The source behind a path; null with a warning when there is none.
    std::unique_ptr<ValueSource> find(IController& scope, const std::string& path);
    void check(bool isBound, const QWidget& widget, const std::string& path);
    void warn(const std::string& path, std::string_view fault);

    const Skin& m_skin;
    ViewMaker m_makeView;
    Ref<ITranslationTable> m_translations;
    std::vector<std::string> m_forms; ///< the form that is being built, behind those that embed it
    std::set<std::string> m_told;
    std::vector<Ref<IController>> m_components;
};

} // namespace xbr::host
