#include "host/net/hostnet.h"

#include "host/net/transfer.h"
#include "host/net/transferloop.h"
#include "host/net/webrequest.h"

namespace xbr::host {

void abortAllRequests() {
    WebRequest::endAll();
    TransferLoop::shutDown();
}

void setIdleLimit(std::chrono::milliseconds limit) {
    Transfer::setIdleLimit(limit);
}

} // namespace xbr::host
