#include "host/net/hostnet.h"

#include "framework/abi/download.h"
#include "framework/abi/feed.h"
#include "framework/abi/webservice.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "host/net/download/downloadtask.h"
#include "host/net/feed/feedreader.h"
#include "host/net/http/transfer.h"
#include "host/net/http/transferloop.h"
#include "host/net/http/webcredentials.h"
#include "host/net/http/webrequest.h"

namespace xbr::host {

namespace {

/// The border's web service.
class WebService final : public Object<IWebService, IDownloadService, IFeedReader> {
public:
    WebService() { TransferLoop::setFarewell(&abortAllRequests); }

    Result createCredentials(IWebCredentials** out) noexcept override {
        *out = make<WebCredentials>().detach();
        return kOk;
    }
    Result createRequest(IWebRequest** out) noexcept override {
        *out = make<WebRequest>().detach();
        return kOk;
    }
    Result createTask(Text url, IDownloadTask** out) noexcept override {
        const DownloadSource source = downloadSource(view(url));
        const bool isKnown = source != DownloadSource::kNone;
        *out = isKnown ? make<DownloadTask>(toString(url), source).detach() : nullptr;
        return isKnown ? kOk : kInvalidArgument;
    }
    Result readFeed(IStream* stream, Text location, Text mimeType, IFeed** out) noexcept override {
        *out = nullptr;
        return stream ? host::readFeed(*stream, location, mimeType, out) : kInvalidArgument;
    }
};

} // namespace

void abortAllRequests() {
    WebRequest::endAll();
    DownloadTask::endAll();
    TransferLoop::shutDown();
}

void abortUploads() {
    WebRequest::abortUploads();
}

void holdRequests(bool isHeld) {
    TransferLoop::hold(isHeld);
}

void setIdleLimit(std::chrono::milliseconds limit) {
    Transfer::setIdleLimit(limit);
}

void setExchangeListener(ExchangeListener* listener) {
    WebRequest::setListener(listener);
}

} // namespace xbr::host

xbr::IWebService* XBRGetWebService() noexcept {
    static xbr::host::WebService service;
    return &service;
}
