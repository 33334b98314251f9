#include "framework/abi/webservice.h"

#include "host/net/webcredentials.h"
#include "host/net/webrequest.h"

namespace xbr::host {

namespace {

class WebService final : public Object<IWebService> {
public:
    Result createCredentials(IWebCredentials** out) noexcept override {
        *out = make<WebCredentials>().detach();
        return kOk;
    }

    Result createRequest(IWebRequest** out) noexcept override {
        *out = make<WebRequest>().detach();
        return kOk;
    }
};

} // namespace

} // namespace xbr::host

xbr::IWebService* XBRGetWebService() noexcept {
    static xbr::host::WebService service;
    return &service;
}
