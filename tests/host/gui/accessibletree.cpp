#include "tests/host/gui/accessibletree.h"

#include <QAccessible>
#include <QWidget>

namespace xbr::host::tests {

namespace {

/// Kinds of things that a person can stop at or that tell about themselves.
bool isControl(QAccessible::Role role) {
    switch (role) {
    case QAccessible::PushButton:
    case QAccessible::ButtonMenu:
    case QAccessible::CheckBox:
    case QAccessible::RadioButton:
    case QAccessible::EditableText:
    case QAccessible::SpinBox:
    case QAccessible::ComboBox:
    case QAccessible::Tree:
    case QAccessible::Table:
    case QAccessible::List:
    case QAccessible::ProgressBar:
    case QAccessible::Slider:
    case QAccessible::Link:
        return true;
    default:
        return false;
    }
}

void collect(QAccessibleInterface& item, std::vector<std::string>& unnamed) {
    if (isControl(item.role()) && !item.state().invisible &&
        item.text(QAccessible::Name).trimmed().isEmpty()) {
        const QObject* object = item.object();
        unnamed.push_back("role " + std::to_string(item.role()) + " '" +
                          (object ? object->objectName().toStdString() : std::string()) + "'");
    }
    for (int i = 0; i < item.childCount(); ++i) {
        if (QAccessibleInterface* child = item.child(i)) {
            collect(*child, unnamed);
        }
    }
}

} // namespace

std::vector<std::string> unnamedControls(QWidget& form) {
    std::vector<std::string> unnamed;
    collect(*QAccessible::queryAccessibleInterface(&form), unnamed);
    return unnamed;
}

std::string accessibleDescription(QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Description).toStdString();
}

} // namespace xbr::host::tests
