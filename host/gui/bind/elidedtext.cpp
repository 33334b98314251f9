#include "host/gui/bind/elidedtext.h"

#include <QAbstractButton>
#include <QEvent>
#include <QLabel>

namespace xbr::host {

ElidedText::ElidedText(QWidget& widget) : QObject(&widget), m_widget(&widget) {
    widget.installEventFilter(this);
    if (auto* label = qobject_cast<QLabel*>(&widget)) {
        label->setTextFormat(Qt::PlainText); // it comes from outside
    }
}

bool ElidedText::fits(const QWidget& widget) {
    return qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget);
}

void ElidedText::set(const QString& text) {
    if (m_text != text) {
        m_text = text;
        show();
    }
}

QString ElidedText::elided() const {
    if (m_widget->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored) {
        return m_text;
    }
    return m_widget->fontMetrics().elidedText(m_text, Qt::ElideRight, m_widget->contentsRect().width());
}

void ElidedText::show() {
    const QString shown = elided();
    if (auto* label = qobject_cast<QLabel*>(m_widget)) {
        label->setText(shown);
    } else if (auto* button = qobject_cast<QAbstractButton*>(m_widget)) {
        button->setText(QString(shown).replace(QLatin1Char('&'), QLatin1String("&&")));
    }
    m_widget->setAccessibleName(m_text);
    m_widget->setToolTip(shown == m_text ? QString()
                                         : QStringLiteral("<qt>%1</qt>").arg(m_text.toHtmlEscaped()));
}

bool ElidedText::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange) {
        show();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace xbr::host
