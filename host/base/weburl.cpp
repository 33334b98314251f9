#include "host/base/weburl.h"

#include "host/base/qttext.h"

#include <QUrl>

namespace xbr::host {

bool isWebAddress(const QUrl& url) {
    return url.isValid() && !url.host().isEmpty() && (url.scheme() == u"http" || url.scheme() == u"https");
}

bool isWebAddress(std::string_view url) {
    return isWebAddress(QUrl(toQString(url), QUrl::StrictMode));
}

} // namespace xbr::host
