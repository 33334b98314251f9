#include "host/net/webservice.h"

#include "framework/support/objects/text.h"
#include "host/net/download/downloadtask.h"
#include "host/net/feed/feedreader.h"
#include "host/net/http/webcredentials.h"
#include "host/net/http/webrequest.h"

namespace xbr::host {

Result WebService::createCredentials(IWebCredentials** out) noexcept {
    *out = make<WebCredentials>().detach();
    return kOk;
}

Result WebService::createRequest(IWebRequest** out) noexcept {
    *out = make<WebRequest>().detach();
    return kOk;
}

Result WebService::createTask(Text url, IDownloadTask** out) noexcept {
    *out = nullptr;
    const DownloadSource source = downloadSource(view(url));
    if (source == DownloadSource::kNone) {
        return kInvalidArgument;
    }
    *out = make<DownloadTask>(toString(url), source).detach();
    return kOk;
}

Result WebService::readFeed(IStream* stream, Text location, Text mimeType, IFeed** out) noexcept {
    *out = nullptr;
    return stream ? host::readFeed(*stream, location, mimeType, out) : kInvalidArgument;
}

} // namespace xbr::host

xbr::IWebService* XBRGetWebService() noexcept {
    static xbr::host::WebService service;
    return &service;
}
