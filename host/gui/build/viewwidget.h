#pragma once

#include "framework/support/objects/ref.h"
#include "host/gui/skin/formview.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace xbr::host {

/// The widget of a view: a form, and the style sheet of its skin for the palette of the moment.
class ViewWidget final : public QWidget {
    Q_OBJECT

public:
    /// Null when the form cannot be made, and for a view that is not of this library.
    static ViewWidget* create(IView& view, QWidget* parent);

    ~ViewWidget() override;

    /// Tall enough for the lines that texts need at the smallest width.
    QSize minimumSizeHint() const override;

    /// What brings the widget to the user's sight; its window is raised without one.
    void setShowAction(std::function<void()> action) { m_showAction = std::move(action); }

protected:
    void changeEvent(QEvent* event) override;

private:
    ViewWidget(FormView& view, QWidget* parent);
    bool build();
    void applyStyle();
    void showUp();

    Ref<FormView> m_view;
    std::vector<Ref<IController>> m_components;
    std::function<void()> m_showAction;
    qint64 m_styledPalette = 0; ///< which palette the style sheet was made for
    bool m_isStyling = false;
};

} // namespace xbr::host
