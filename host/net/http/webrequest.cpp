#include "host/net/http/webrequest.h"

#include "framework/support/objects/text.h"
#include "host/base/mainthread.h"
#include "host/base/textscan.h"
#include "host/net/http/request.h"
#include "host/net/http/requesturl.h"
#include "host/net/http/transferloop.h"

#include <algorithm>

namespace xbr::host {

namespace {

/// All requests that owe their handler a message.
std::vector<WebRequest*> g_owing;

constexpr std::int32_t kFirstRefusal = 400;
ExchangeListener* g_listener = nullptr;

bool isOwing(const WebRequest* request) {
    return std::find(g_owing.begin(), g_owing.end(), request) != g_owing.end();
}

} // namespace

WebRequest::~WebRequest() {
    const bool owes = isOwing(this);
    std::erase(g_owing, this);
    endTransfer();
    if (owes) {
        tellEnd();
    }
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
    if (!isToken(view(name)) || hasControls(view(value)) || isTransportHeader(view(name))) {
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
    m_exchange = {};
    m_exchange.method = m_method;
    m_exchange.host = m_host;
    m_exchange.hadCredentials = static_cast<bool>(m_credentials);
    m_exchange.hadBody = content.exists();
    m_exchange.size = content.size();
    auto& loop = TransferLoop::instance();
    auto transfer =
        Transfer::create({m_method, m_url, m_host, buildHeaders(), std::move(content), nullptr}, *this);
    if (!transfer || !loop.start(*transfer)) {
        return kUnexpected;
    }
    m_transfer = std::move(transfer);
    m_credentials.reset();
    if (handler) {
        m_handler = Ref<IObserver>::share(handler);
    }
    setState(State::kInFlight);
    if (g_listener) {
        g_listener->began(m_exchange);
    }
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
    m_exchange.sent = m_transfer ? m_transfer->sent() : 0; // none: the last of it was sent this moment
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
    tellEnd();
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
    if (g_listener && m_transfer) {
        m_exchange.sent = m_transfer->sent();
        g_listener->progressed(m_exchange);
    }
    const auto self = Ref<WebRequest>::share(this);
    const auto handler = m_handler;
    tell(handler.get(), *make<RequestMessage>("onprogress", fraction));
}

void WebRequest::onFinished(Answer answer) {
    const auto self = Ref<WebRequest>::share(this);
    // Kept until we return: it is the caller.
    const auto transfer = std::move(m_transfer);
    if (answer.wholeBodySent) {
        onSent(1.0);
    }
    if (m_state != State::kInFlight) {
        return; // aborted by the handler of the progress
    }
    m_answer = std::move(answer);
    note(m_answer);
    const auto handler = std::exchange(m_handler, {});
    setState(State::kDone);
    tell(handler.get(), *make<RequestMessage>("onloadend"));
    tellEnd();
}

void WebRequest::endSilently() {
    const auto self = Ref<WebRequest>::share(this);
    const auto handler = std::exchange(m_handler, {});
    m_pendingAbort.reset();
    setState(State::kDone);
    endTransfer();
    tellEnd();
}

/// What is told of the answer.
void WebRequest::note(const Answer& answer) {
    m_exchange.sent = answer.sent;
    m_exchange.status = answer.status;
    m_exchange.wait = answer.headers.secondsToWait();
    if (answer.status >= kFirstRefusal && answer.body) {
        m_exchange.said = wordsOf(*answer.body);
    }
    m_exchange.problem = answer.status == 0
                             ? answer.problem
                             : refusalOf(answer.status, m_exchange.hadCredentials, m_host, m_exchange.said);
}

/// The request is over, with or without an answer.
void WebRequest::tellEnd() {
    if (m_exchange.status == 0 && !m_exchange.problem) {
        m_exchange.problem = {Fault::kCancelled, m_host, 0, {}, {}, {}};
    }
    if (g_listener) {
        g_listener->ended(m_exchange);
    }
}

void WebRequest::setListener(ExchangeListener* listener) {
    g_listener = listener;
}

void WebRequest::abortUploads() {
    for (WebRequest* request : g_owing) {
        if (request->m_exchange.hadCredentials && request->m_exchange.hadBody) {
            request->abort(); // it goes on owing a message
        }
    }
}

void WebRequest::endAll() {
    while (!g_owing.empty()) {
        g_owing.back()->endSilently();
    }
}

Result WebRequest::getResponseBody(IStream** out) noexcept {
    *out = nullptr;
    if (!m_answer.body) {
        return kFalse;
    }
    rewind(*m_answer.body);
    *out = Ref<IStream>(m_answer.body).detach();
    return kOk;
}

Result WebRequest::getErrorText(IString** out) noexcept {
    *out = make<String>(m_answer.problem.words).detach();
    return kOk;
}

} // namespace xbr::host
