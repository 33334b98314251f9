#include "host/gui/list/listgestures.h"

#include "framework/support/objects/objectlist.h"
#include "framework/support/objects/text.h"

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

} // namespace xbr::host
