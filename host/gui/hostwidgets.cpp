#include "host/gui/hostwidgets.h"

#include "host/gui/bind/controlbinding.h"
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

void setCommandListener(std::function<void(IParameter& command)> listener) {
    hearCommands(std::move(listener));
}

} // namespace xbr::host
