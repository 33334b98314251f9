#include "host/gui/hostwidgets.h"

#include "host/gui/bind/controlbinding.h"
#include "host/gui/build/viewwidget.h"

#include <QLabel>

namespace xbr::host {

QWidget* createViewWidget(IView& view, QWidget* parent) {
    return ViewWidget::create(view, parent);
}

void setShowAction(QWidget& viewWidget, std::function<void()> show) {
    if (auto* widget = qobject_cast<ViewWidget*>(&viewWidget)) {
        widget->setShowAction(std::move(show));
    }
}

void setCommandListener(std::function<bool(IParameter& command)> comes,
                        std::function<void(IParameter& command)> performed) {
    hearCommands({std::move(comes), std::move(performed)});
}

void setEntryListener(std::function<void(IParameter& parameter, const QString& text)> listener) {
    hearEntries(std::move(listener));
}

void offerNames(QLineEdit& field, const QStringList& names) {
    completeNames(field, [names] { return names; });
}

QWidget* controlOf(const QWidget& viewWidget, const QString& parameter) {
    for (QWidget* widget : viewWidget.findChildren<QWidget*>()) {
        if (widget->property("xbrParameter").toString().section('/', -1) == parameter) {
            return widget;
        }
    }
    return nullptr;
}

void setReason(QWidget& viewWidget, const QString& parameter, const QString& reason,
               const std::function<void()>& show) {
    if (QWidget* control = controlOf(viewWidget, parameter)) {
        control->setToolTip(reason);
        control->setAccessibleDescription(reason);
    }
    for (QLabel* label : viewWidget.findChildren<QLabel*>()) {
        if (label->property("xbrReasonFor").toString() != parameter) {
            continue;
        }
        label->setText(reason.isEmpty() ? reason : "<a href=\"#\">" + reason.toHtmlEscaped() + "</a>");
        label->setAccessibleName(reason);
        label->setVisible(!reason.isEmpty()); // an empty one would be a stop of the tabulator
        QObject::disconnect(label, &QLabel::linkActivated, nullptr, nullptr);
        QObject::connect(label, &QLabel::linkActivated, label, [show] { show(); });
    }
}

} // namespace xbr::host
