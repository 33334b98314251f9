#include "host/gui/hostwidgets.h"

#include "host/gui/build/viewwidget.h"

namespace xbr::host {

QWidget* createViewWidget(IView& view, QWidget* parent) {
    return ViewWidget::create(view, parent);
}

void setShowAction(QWidget& viewWidget, std::function<void()> show) {
    if (auto* widget = qobject_cast<ViewWidget*>(&viewWidget)) {
        widget->setShowAction(std::move(show));
    }
}

} // namespace xbr::host
