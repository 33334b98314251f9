#include "framework/support/parts/path.h"
#include "host/gui/bind/bindings.h"
#include "host/gui/list/listview.h"

namespace xbr::host {

bool bindList(QWidget& widget, IController& scope, const std::string& path) {
    auto* list = qobject_cast<ListView*>(&widget);
    auto model = findObject<IListViewModel>(scope, path);
    if (!list || !model) {
        return false;
    }
    list->setPlaceholder(widget.property("xbrPlaceholder").toString());
    list->setRemoveText(widget.property("xbrRemoveText").toString());
    list->showModel(*new ListModelAdaptor(std::move(model), list));
    return true;
}

} // namespace xbr::host
