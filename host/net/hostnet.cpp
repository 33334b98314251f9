#include "host/net/hostnet.h"

#include "host/net/downloadqueue.h"
#include "host/net/transfer.h"
#include "host/net/transferloop.h"
#include "host/net/webrequest.h"

namespace xbr::host {

void abortAllRequests() {
    WebRequest::endAll();
    DownloadQueue::endAll();
    TransferLoop::shutDown();
}

void setIdleLimit(std::chrono::milliseconds limit) {
    Transfer::setIdleLimit(limit);
}

std::uint64_t countRefusedCredentials() noexcept {
    return WebRequest::countRefusedCredentials();
}

} // namespace xbr::host
