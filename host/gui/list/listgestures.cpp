#include "host/gui/list/listgestures.h"

#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/translation.h"

#include <QMenu>
#include <QMimeData>
#include <QUrl>

namespace xbr::host {

namespace {

class DraggedLocation final : public Object<IUrlSource> {
public:
    explicit DraggedLocation(std::string url) : m_url(std::move(url)) {}

    Result getUrl(IString** out) noexcept override { return giveText(m_url, out); }

private:
    std::string m_url;
};

} // namespace

Ref<IObjectIterator> draggedObjects(const QMimeData& data) {
    auto objects = make<ObjectList>();
    for (const QUrl& url : data.urls()) {
        const auto location = make<DraggedLocation>(url.toEncoded().toStdString());
        objects->add(query<IObject>(location.get()));
    }
    return objects;
}

void addCommands(QMenu& menu, const Ref<ICommandList>& commands, ITranslationTable* translations) {
    std::string category;
    for (std::int32_t i = 0; i < commands->count(); ++i) {
        if (std::string own = toString(commands->categoryAt(i)); own != category) {
            menu.addSeparator(); // one at the top is not shown
            category = std::move(own);
        }
        // A "&" of a name is a letter of it.
        auto name = QString::fromStdString(translate(commands->nameAt(i), translations));
        auto* action = menu.addAction(name.replace(QLatin1Char('&'), QLatin1String("&&")));
        action->setEnabled(commands->isEnabled(i));
        QObject::connect(action, &QAction::triggered, &menu, [commands, i] { commands->perform(i); });
    }
}

} // namespace xbr::host
