#include "host/net/hostnet.h"

#include "host/net/download/downloadqueue.h"
#include "host/net/http/transfer.h"
#include "host/net/http/transferloop.h"
#include "host/net/http/webrequest.h"

namespace xbr::host {

void abortAllRequests() {
    WebRequest::endAll();
    DownloadQueue::endAll();
    TransferLoop::shutDown();
}

void setIdleLimit(std::chrono::milliseconds limit) {
    Transfer::setIdleLimit(limit);
}

void setExchangeListener(ExchangeListener* listener) {
    WebRequest::setListener(listener);
}

std::uint64_t countRefusedCredentials() noexcept {
    return WebRequest::countRefusedCredentials();
}

} // namespace xbr::host
