#include "host/gui/bind/parameterbinding.h"

#include <QAccessible>
#include <QEvent>
#include <QPointer>
#include <QWidget>

namespace xbr::host {

ParameterBinding::ParameterBinding(QWidget& control, std::unique_ptr<ValueSource> source)
    : QObject(&control),
      m_control(&control),
      m_source(std::move(source)) {}

void ParameterBinding::start() {
    m_source->observe([this] { refresh(); });
    refresh();
}

void ParameterBinding::set(const Value& value) {
    // The module may do anything now, closing the panel included.
    const QPointer<ParameterBinding> self(this);
    const auto kept = Ref<IParameter>::share(&parameter());
    kept->setValue(value);
    if (self) {
        refresh();
    }
}

void ParameterBinding::refresh() {
    m_control->setEnabled(parameter().isEnabled());
    show();
}

void ParameterBinding::nameField(QWidget& control, QWidget& field) {
    // Asked the way a screen reader asks: the name may be that of a label beside the control.
    if (QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&control)) {
        field.setAccessibleName(accessible->text(QAccessible::Name));
    }
}

bool ParameterBinding::eventFilter(QObject* watched, QEvent* event) {
    // The wheel scrolls what lies below the pointer; a value that happens to come by is not to change.
    if (event->type() == QEvent::Wheel && !m_control->hasFocus()) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace xbr::host
