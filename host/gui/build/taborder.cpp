#include "host/gui/build/taborder.h"

#include <QList>
#include <QWidget>

namespace xbr::host {

namespace {

QList<QWidget*> stopsOf(QWidget& content) {
    QList<QWidget*> stops;
    QWidget* widget = &content;
    do {
        const bool isInside = widget == &content || content.isAncestorOf(widget);
        if (isInside && widget->focusPolicy() != Qt::NoFocus) {
            stops.append(widget);
        }
        widget = widget->nextInFocusChain();
    } while (widget && widget != &content);
    return stops;
}

} // namespace

QWidget& placeInTabOrder(QWidget& anchor, QWidget& content) {
    const Qt::FocusPolicy policy = anchor.focusPolicy();
    anchor.setFocusPolicy(Qt::StrongFocus); // Qt takes no other widgets for an order
    QWidget* last = &anchor;
    for (QWidget* stop : stopsOf(content)) {
        QWidget::setTabOrder(last, stop);
        last = stop;
    }
    anchor.setFocusPolicy(policy);
    return *last;
}

} // namespace xbr::host
