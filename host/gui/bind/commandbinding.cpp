#include "framework/abi/listmodel.h"
#include "framework/support/objects/text.h"
#include "host/gui/bind/bindings.h"

#include <QAbstractButton>

namespace xbr::host {

bool bindCommand(QWidget& widget, IController& scope, const std::string& number) {
    auto* button = qobject_cast<QAbstractButton*>(&widget);
    auto commands = query<ICommandList>(&scope);
    bool isNumber = false;
    const int index = QString::fromStdString(number).toInt(&isNumber);
    if (!button || !commands || !isNumber || index < 0 || index >= commands->count()) {
        return false;
    }
    // A "&" of a name is a letter of it.
    const QString name = QString::fromStdString(toString(commands->nameAt(index)));
    button->setText(QString(name).replace(QLatin1Char('&'), QLatin1String("&&")));
    button->setEnabled(commands->isEnabled(index));
    QObject::connect(button, &QAbstractButton::clicked, button,
                     [commands = std::move(commands), index] { commands->perform(index); });
    return true;
}

} // namespace xbr::host
