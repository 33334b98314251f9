#include "host/gui/hostwidgets.h"

#include "host/gui/build/viewwidget.h"
#include "host/gui/skin/formview.h"

namespace xbr::host {

QWidget* createViewWidget(IView& view, QWidget* parent) {
    FormView* const form = FormView::from(view);
    return form ? ViewWidget::create(*form, parent) : nullptr;
}

void setShowAction(QWidget& viewWidget, std::function<void()> show) {
    if (auto* widget = qobject_cast<ViewWidget*>(&viewWidget)) {
        widget->setShowAction(std::move(show));
    }
}

} // namespace xbr::host
