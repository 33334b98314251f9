#include "host/gui/build/formloader.h"

#include "host/gui/list/listview.h"

namespace xbr::host {

FormLoader::FormLoader() {
    clearPluginPaths(); // a skin gets nothing from whatever else is installed here
    setTranslationEnabled(false);
}

QWidget* FormLoader::createWidget(const QString& className, QWidget* parent, const QString& name) {
    if (className == QLatin1String("QTreeView")) {
        auto* list = new ListView(parent);
        list->setObjectName(name);
        return list;
    }
    return QUiLoader::createWidget(className, parent, name);
}

} // namespace xbr::host
