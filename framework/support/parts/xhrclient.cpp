#include "framework/support/parts/xhrclient.h"

#include "framework/support/objects/text.h"

#include <algorithm>

namespace xbr {

bool isSuccess(const IWebRequest& request) {
    return request.status() >= 200 && request.status() <= 299;
}

bool isUnauthorized(const IWebRequest& request) {
    return request.status() == 401;
}

/// One request on its way, and who waits for it. Outlives the client when the client dies first.
class XHRClient::Transfer final : public Object<IObserver> {
public:
    Transfer(XHRClient& client, Handler handler, Ref<IWebRequest> request)
        : m_client(&client),
          m_handler(std::move(handler)),
          m_request(std::move(request)) {}

    IWebRequest& request() const { return *m_request; }

    /// The client is going or has lost interest: nothing is called any more, the request ends.
    void detach() {
        m_client = nullptr;
        m_handler = nullptr;
        m_request.reset();
    }

    void notify(ISubject*, IMessage* message) noexcept override {
        if (!m_client) {
            return;
        }
        const auto self = Ref<Transfer>::share(this);
        if (!isNamed(*message, "onloadend") && !isNamed(*message, "onabort")) {
            // Copies: the handler may lead to the client's end, which drops both here.
            const auto request = m_request;
            const auto handler = m_handler;
            handler(*message, *request);
            return;
        }
        m_client->becomeFree(*this);
        // An observer of the busy state may have dropped the client, and whom the handler stands for with it.
        if (m_client) {
            std::exchange(m_client, nullptr)->forget(*this);
            const auto handler = std::exchange(m_handler, nullptr);
            const auto request = std::move(m_request);
            handler(*message, *request);
        }
    }

private:
    XHRClient* m_client;
    Handler m_handler;
    Ref<IWebRequest> m_request;
};

XHRClient::XHRClient(std::string_view name) : Component(name) {}

XHRClient::~XHRClient() {
    for (const auto& transfer : m_transfers) {
        transfer->detach();
    }
}

bool XHRClient::send(Handler handler, std::string_view method, const Url& url, const Ref<IStream>& body,
                     std::string_view contentType) {
    if (isBusy()) {
        return false;
    }
    Ref<IWebRequest> request;
    if (XBRGetWebService()->createRequest(request.out()) != kOk ||
        request->open(toText(method), toText(url.toString()), m_credentials.get()) != kOk) {
        return false;
    }
    if (!contentType.empty() && request->setHeader(toText("Content-Type"), toText(contentType)) != kOk) {
        return false;
    }
    const auto transfer = make<Transfer>(*this, std::move(handler), request);
    if (request->send(body.get(), transfer.get()) != kOk) {
        transfer->detach();
        return false;
    }
    m_transfers.push_back(transfer);
    m_current = transfer.get();
    signal(*this, "propertyChanged");
    return true;
}

void XHRClient::abort() {
    if (Transfer* transfer = std::exchange(m_current, nullptr)) {
        transfer->request().abort();
        signal(*this, "propertyChanged");
    }
}

void XHRClient::cancel() {
    m_current = nullptr;
    for (const auto& transfer : std::exchange(m_transfers, {})) {
        transfer->detach();
    }
}

void XHRClient::becomeFree(const Transfer& transfer) {
    if (m_current == &transfer) {
        m_current = nullptr;
        signal(*this, "propertyChanged");
    }
}

void XHRClient::forget(const Transfer& transfer) {
    std::erase_if(m_transfers, [&](const auto& held) { return held.get() == &transfer; });
}

Result XHRClient::getProperty(Text name, Value* out) noexcept {
    if (xbr::view(name) == "isBusy") {
        *out = boolValue(isBusy());
        return kOk;
    }
    return Component::getProperty(name, out);
}

} // namespace xbr
