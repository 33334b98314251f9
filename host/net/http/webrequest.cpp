#include "host/net/http/webrequest.h"

#include "framework/support/objects/text.h"
#include "host/net/http/request.h"
#include "host/net/http/requestmessage.h"
#include "host/net/http/requesturl.h"
#include "host/net/http/transferloop.h"

#include <QCoreApplication>
#include <QThread>

#include <algorithm>

namespace xbr::host {

namespace {

/// All requests that owe their handler a message.
std::vector<WebRequest*> g_owing;

constexpr std::int32_t kUnauthorized = 401;
std::uint64_t g_refusedCredentials = 0;

bool isOwing(const WebRequest* request) {
    return std::find(g_owing.begin(), g_owing.end(), request) != g_owing.end();
}

void assertMainThread() {
    Q_ASSERT(QCoreApplication::instance() &&
             QThread::currentThread() == QCoreApplication::instance()->thread());
}

} // namespace

WebRequest::~WebRequest() {
    std::erase(g_owing, this);
    endTransfer();
}

void WebRequest::setState(State state) {
    Q_ASSERT(state > m_state || (state == State::kOpened && m_state == State::kOpened));
    m_state = state;
    const bool owes = state == State::kInFlight || state == State::kAborted;
    if (owes && !isOwing(this)) {
        g_owing.push_back(this);
    } else if (!owes) {
        std::erase(g_owing, this);
    }
}

Result WebRequest::open(Text method, Text url, IWebCredentials* credentials) noexcept {
    if (m_state > State::kOpened) {
        return kUnexpected;
    }
    const auto own = query<WebCredentials>(credentials);
    const auto host = requestHost(view(url));
    // CONNECT asks for a tunnel, not for an answer.
    if (!isToken(view(method)) || view(method) == "CONNECT" || !host ||
        (credentials && !(own && own->isSet()))) {
        return kInvalidArgument;
    }
    m_method = toString(method);
    m_url = toString(url);
    m_host = *host;
    m_credentials = own;
    setState(State::kOpened);
    return kOk;
}

Result WebRequest::setHeader(Text name, Text value) noexcept {
    if (m_state > State::kOpened) {
        return kUnexpected;
    }
    if (!isToken(view(name)) || hasControlCharacter(view(value)) || isTransportHeader(view(name))) {
        return kInvalidArgument;
    }
    m_headers.emplace_back(view(name), view(value));
    return kOk;
}

RequestHeaders WebRequest::buildHeaders() const {
    RequestHeaders headers;
    for (const auto& [name, value] : m_headers) {
        // Credentials win over a header of the caller's: two of them would leave the choice to the server.
        if (!m_credentials || !isSameHeader(name, "Authorization")) {
            headers.add(name, value);
        }
    }
    if (m_credentials) {
        headers.add("Authorization", m_credentials->authorization());
    }
    return headers;
}

Result WebRequest::send(IStream* body, IObserver* handler) noexcept {
    assertMainThread();
    if (m_state != State::kOpened) {
        return kUnexpected;
    }
    RequestBody content;
    if (!content.open(body) || (content.exists() && m_method == "HEAD")) {
        return kInvalidArgument;
    }
    auto& loop = TransferLoop::instance();
    auto transfer = Transfer::create({m_method, m_url, m_host, buildHeaders(), std::move(content)}, *this);
    if (!transfer || !loop.start(*transfer)) {
        return kUnexpected;
    }
    m_transfer = std::move(transfer);
    m_hadCredentials = static_cast<bool>(m_credentials);
    m_credentials.reset();
    if (handler) {
        m_handler = Ref<IObserver>::share(handler);
    }
    setState(State::kInFlight);
    return kOk;
}

void WebRequest::endTransfer() {
    if (m_transfer) {
        TransferLoop::instance().end(std::move(m_transfer));
    }
}

Result WebRequest::abort() noexcept {
    assertMainThread();
    if (m_state != State::kInFlight) {
        return kFalse;
    }
    setState(State::kAborted);
    endTransfer();
    m_pendingAbort = std::make_shared<WebRequest*>(this);
    const std::weak_ptr<WebRequest*> pending = m_pendingAbort;
    const auto deliver = [pending] {
        if (const auto request = pending.lock()) {
            (*request)->deliverAbort();
        }
    };
    QMetaObject::invokeMethod(&TransferLoop::instance(), deliver, Qt::QueuedConnection);
    return kOk;
}

void WebRequest::deliverAbort() {
    const auto self = Ref<WebRequest>::share(this);
    const auto handler = std::exchange(m_handler, {});
    m_pendingAbort.reset();
    setState(State::kDone);
    tell(handler.get(), *make<RequestMessage>("onabort"));
}

void WebRequest::tell(IObserver* handler, IMessage& message) {
    if (handler) {
        handler->notify(this, &message);
    }
}

void WebRequest::onSent(double fraction) {
    if (fraction <= m_lastSent) {
        return;
    }
    m_lastSent = fraction;
    const auto self = Ref<WebRequest>::share(this);
    const auto handler = m_handler;
    tell(handler.get(), *make<RequestMessage>("onprogress", fraction));
}

void WebRequest::onFinished(Outcome outcome) {
    const auto self = Ref<WebRequest>::share(this);
    // Kept until we return: it is the caller.
    const auto transfer = std::move(m_transfer);
    if (outcome.wholeBodySent) {
        onSent(1.0);
    }
    if (m_state != State::kInFlight) {
        return; // aborted by the handler of the progress
    }
    m_outcome = std::move(outcome);
    g_refusedCredentials += m_hadCredentials && m_outcome.status == kUnauthorized ? 1 : 0;
    const auto handler = std::exchange(m_handler, {});
    setState(State::kDone);
    tell(handler.get(), *make<RequestMessage>("onloadend"));
}

void WebRequest::endSilently() {
    const auto self = Ref<WebRequest>::share(this);
    const auto handler = std::exchange(m_handler, {});
    m_pendingAbort.reset();
    setState(State::kDone);
    endTransfer();
}

std::uint64_t WebRequest::countRefusedCredentials() noexcept {
    return g_refusedCredentials;
}

void WebRequest::endAll() {
    while (!g_owing.empty()) {
        g_owing.back()->endSilently();
    }
}

Result WebRequest::getResponseBody(IStream** out) noexcept {
    *out = nullptr;
    if (!m_outcome.body) {
        return kFalse;
    }
    rewind(*m_outcome.body);
    *out = Ref<IStream>(m_outcome.body).detach();
    return kOk;
}

Result WebRequest::getErrorText(IString** out) noexcept {
    *out = make<String>(m_outcome.error).detach();
    return kOk;
}

} // namespace xbr::host
