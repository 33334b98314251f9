#include "host/base/weburl.h"

#include "host/base/qttext.h"

#include <QUrl>

namespace xbr::host {

bool isWebAddress(const QUrl& url) {
    const bool isOfTheWeb = url.scheme() == u"http" || url.scheme() == u"https";
    return url.isValid() && isOfTheWeb && !url.host().isEmpty() && url.userInfo().isEmpty();
}

bool isWebAddress(std::string_view url) {
    return isWebAddress(QUrl(toQString(url), QUrl::StrictMode));
}

} // namespace xbr::host
