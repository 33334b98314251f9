#include "host/gui/list/commandmenu.h"

#include "framework/support/objects/text.h"

#include <QMenu>

namespace xbr::host {

void addCommands(QMenu& menu, const Ref<ICommandList>& commands) {
    std::string category;
    for (std::int32_t i = 0; i < commands->count(); ++i) {
        if (std::string own = toString(commands->categoryAt(i)); own != category) {
            menu.addSeparator(); // one at the top is not shown
            category = std::move(own);
        }
        // A "&" of a name is a letter of it.
        const QString name = QString::fromStdString(toString(commands->nameAt(i)));
        auto* action = menu.addAction(QString(name).replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setEnabled(commands->isEnabled(i));
        QObject::connect(action, &QAction::triggered, &menu, [commands, i] { commands->perform(i); });
    }
}

} // namespace xbr::host
