#include "tests/fakehost/fakeweb.h"

#include "framework/support/data/memorystream.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "tests/fakehost/fakehost.h"

namespace fakehost {

namespace {

class FakeCredentials final : public xbr::Object<xbr::IWebCredentials> {
public:
    xbr::Result set(xbr::Text, xbr::Text password, xbr::Text scheme) noexcept override {
        if (xbr::view(password).find_first_of("\r\n") != std::string_view::npos) {
            return xbr::kInvalidArgument;
        }
        header = xbr::toString(scheme) + " " + xbr::toString(password);
        return xbr::kOk;
    }

    std::string header;
};

} // namespace

class FakeWebRequest final : public xbr::Object<xbr::IWebRequest> {
public:
    explicit FakeWebRequest(FakeWebService& service) : m_service(service) {}
    ~FakeWebRequest() override { leave(); }

    xbr::Result open(xbr::Text method, xbr::Text url, xbr::IWebCredentials* credentials) noexcept override {
        if (fails()) {
            return xbr::kUnexpected;
        }
        m_sent.method = xbr::view(method);
        m_sent.url = xbr::view(url);
        if (credentials) {
            m_sent.headers["Authorization"] = static_cast<FakeCredentials*>(credentials)->header;
        }
        return xbr::kOk;
    }

    xbr::Result setHeader(xbr::Text name, xbr::Text value) noexcept override {
        if (fails()) {
            return xbr::kUnexpected;
        }
        m_sent.headers[xbr::toString(name)] = xbr::view(value);
        return xbr::kOk;
    }

    xbr::Result send(xbr::IStream* body, xbr::IObserver* handler) noexcept override {
        if (fails()) {
            return xbr::kUnexpected;
        }
        if (m_service.refusesRequests) {
            return xbr::kUnexpected;
        }
        m_sent.body = body ? xbr::readAll(*body) : std::string();
        m_service.sent.push_back(m_sent);
        m_handler = xbr::Ref<xbr::IObserver>::share(handler);
        m_service.m_inFlight = this;
        return xbr::kOk;
    }

    xbr::Result abort() noexcept override {
        leave();
        host().signals.enqueue([self = xbr::Ref<FakeWebRequest>::share(this)] { self->complete("onabort"); });
        return xbr::kOk;
    }

    bool isBusy() const noexcept override { return m_service.m_inFlight == this; }
    std::int32_t status() const noexcept override { return m_status; }

    xbr::Result getResponseBody(xbr::IStream** out) noexcept override {
        if (fails()) {
            *out = nullptr;
            return xbr::kUnexpected;
        }
        *out = m_reply ? xbr::Ref<xbr::IStream>(m_reply).detach() : nullptr;
        return *out ? xbr::kOk : xbr::kFalse;
    }

    xbr::Result getErrorText(xbr::IString** out) noexcept override { return xbr::giveText("", out); }

    void reply(std::int32_t status, const std::string& body) {
        m_status = status;
        if (!body.empty()) {
            const auto stream = xbr::make<xbr::MemoryStream>();
            stream->write(body);
            xbr::rewind(*stream);
            m_reply = stream;
        }
        leave();
        complete("onloadend");
    }

    void notify(xbr::Message& message) {
        const auto handler = m_handler;
        handler->notify(nullptr, &message);
    }

private:
    void complete(const char* name) {
        const auto self = xbr::Ref<FakeWebRequest>::share(this);
        if (const auto handler = std::exchange(m_handler, nullptr)) {
            handler->notify(nullptr, xbr::make<xbr::Message>(name).get());
        }
    }

    void leave() {
        if (m_service.m_inFlight == this) {
            m_service.m_inFlight = nullptr;
        }
    }

    FakeWebService& m_service;
    SentRequest m_sent;
    std::int32_t m_status = 0;
    xbr::Ref<xbr::IStream> m_reply;
    xbr::Ref<xbr::IObserver> m_handler;
};

xbr::Result FakeWebService::createCredentials(xbr::IWebCredentials** out) noexcept {
    if (fails()) {
        *out = nullptr;
        return xbr::kUnexpected;
    }
    *out = xbr::make<FakeCredentials>().detach();
    return xbr::kOk;
}

xbr::Result FakeWebService::createRequest(xbr::IWebRequest** out) noexcept {
    if (fails()) {
        *out = nullptr;
        return xbr::kUnexpected;
    }
    *out = xbr::make<FakeWebRequest>(*this).detach();
    return xbr::kOk;
}

xbr::Result FakeWebService::createTask(xbr::Text url, xbr::IDownloadTask** out) noexcept {
    return host().downloads.createTask(xbr::toString(url), out);
}

xbr::Result FakeWebService::readFeed(xbr::IStream* stream, xbr::Text location, xbr::Text,
                                     xbr::IFeed** out) noexcept {
    return host().feeds.readFeed(*stream, xbr::toString(location), out);
}

void FakeWebService::answer(std::int32_t status, std::string body) {
    const auto request = xbr::Ref<FakeWebRequest>::share(m_inFlight);
    request->reply(status, body);
    host().signals.pump();
}

void FakeWebService::progress(const xbr::Value& fraction) {
    m_inFlight->notify(*xbr::make<xbr::Message>("onprogress", std::initializer_list<xbr::Value>{fraction}));
}

void FakeWebService::abortInFlight() {
    m_inFlight->abort();
    host().signals.pump();
}

} // namespace fakehost
