#include "host/net/http/transfer.h"

#include <QByteArray>

#include <algorithm>
#include <poll.h>
#include <utility>

namespace xbr::host {

namespace {

constexpr std::chrono::milliseconds kDefaultIdleLimit{60'000};
constexpr long kConnectSeconds = 30;
constexpr long kMaximumRedirects = 5;

/// Bytes a second. A document that comes more slowly for a third of the idle limit is given up, and any that
/// has not come in twice the idle limit: few have a turn at a time.
constexpr long kSlowest = 1024;

/// The most that libcurl takes. Fewer, larger reads and writes are what makes large bodies fast.
constexpr long kUploadBuffer = 2L << 20U;

std::int64_t g_idleTicks = kDefaultIdleLimit / Transfer::kTick;

template <class Value>
bool setOption(CURL* easy, CURLoption option, Value value) {
    return curl_easy_setopt(easy, option, value) == CURLE_OK;
}

/// Methods whose requests carry a length even when there is no body (RFC 9110, section 8.6).
bool announcesLength(const std::string& method) {
    return method == "POST" || method == "PUT" || method == "PATCH";
}

} // namespace

void Transfer::setIdleLimit(std::chrono::milliseconds limit) {
    g_idleTicks = std::max<std::int64_t>(limit / kTick, 1);
}

std::unique_ptr<Transfer> Transfer::create(Request request, ITransferListener& listener) {
    std::unique_ptr<Transfer> transfer(new Transfer(std::move(request), listener));
    if (!transfer->m_easy || !transfer->configure()) {
        return nullptr;
    }
    return transfer;
}

Transfer::Transfer(Request request, ITransferListener& listener)
    : m_request(std::move(request)),
      m_listener(listener),
      m_easy(curl_easy_init()),
      m_idleTicksLeft(g_idleTicks),
      m_idleTicks(g_idleTicks) {}

Transfer::~Transfer() {
    curl_easy_cleanup(m_easy);
}

bool Transfer::configure() {
    const auto set = [this](CURLoption option, auto value) { return setOption(m_easy, option, value); };
    // NOSIGNAL: signals belong to the host program. QUICK_EXIT: without it, ending a request whose host name
    // is being looked up would wait for the resolver and freeze the window for many seconds.
    return set(CURLOPT_URL, m_request.url.c_str()) && set(CURLOPT_PRIVATE, this) &&
           set(CURLOPT_NOSIGNAL, 1L) && set(CURLOPT_QUICK_EXIT, 1L) &&
           set(CURLOPT_PROTOCOLS_STR, "http,https") &&
           set(CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1)) &&
           set(CURLOPT_CONNECTTIMEOUT, kConnectSeconds) && set(CURLOPT_TCP_KEEPALIVE, 1L) &&
           set(CURLOPT_USERAGENT, "xbrhost/" XBR_HOST_VERSION) && configureRedirects() && configureMethod() &&
           configureCertificates() && configureCallbacks();
}

bool Transfer::configureRedirects() {
    const auto set = [this](CURLoption option, auto value) { return setOption(m_easy, option, value); };
    const bool isFollowing = m_request.redirects != nullptr;
    if (!set(CURLOPT_DISALLOW_USERNAME_IN_URL, 1L) || !set(CURLOPT_FOLLOWLOCATION, isFollowing ? 1L : 0L)) {
        return false;
    }
    const auto idle = std::chrono::milliseconds(m_idleTicks * kTick);
    const auto slow = std::chrono::ceil<std::chrono::seconds>(idle / 3);
    return !isFollowing ||
           (set(CURLOPT_REDIR_PROTOCOLS_STR, m_request.redirects) &&
            set(CURLOPT_MAXREDIRS, kMaximumRedirects) && set(CURLOPT_LOW_SPEED_LIMIT, kSlowest) &&
            set(CURLOPT_LOW_SPEED_TIME, static_cast<long>(slow.count())) &&
            set(CURLOPT_TIMEOUT_MS, static_cast<long>(2 * idle.count())));
}

bool Transfer::configureMethod() {
    const auto set = [this](CURLoption option, auto value) { return setOption(m_easy, option, value); };
    m_request.headers.suppress("Expect");
    if (!set(CURLOPT_HTTPHEADER, m_request.headers.list()) ||
        !set(CURLOPT_CUSTOMREQUEST, m_request.method.c_str())) {
        return false;
    }
    // A kept connection may turn out to be closed after the request went out, and libcurl then sends it
    // again. The server may have acted on the first one, so what is not idempotent gets a connection of its
    // own.
    if ((m_request.method == "POST" || m_request.method == "PATCH") && !set(CURLOPT_FRESH_CONNECT, 1L)) {
        return false;
    }
    if (m_request.body.exists() || announcesLength(m_request.method)) {
        return set(CURLOPT_UPLOAD, 1L) && set(CURLOPT_UPLOAD_BUFFERSIZE, kUploadBuffer) &&
               set(CURLOPT_INFILESIZE_LARGE, static_cast<curl_off_t>(m_request.body.size()));
    }
    return m_request.method != "HEAD" || set(CURLOPT_NOBODY, 1L);
}

bool Transfer::configureCertificates() {
    const auto set = [this](CURLoption option, auto value) { return setOption(m_easy, option, value); };
    if (!set(CURLOPT_SSL_VERIFYPEER, 1L) || !set(CURLOPT_SSL_VERIFYHOST, 2L) ||
        !set(CURLOPT_SSLVERSION, static_cast<long>(CURL_SSLVERSION_TLSv1_2))) {
        return false;
    }
    const QByteArray file = qgetenv("SSL_CERT_FILE");
    return file.isEmpty() ||
           (set(CURLOPT_CAINFO, file.constData()) && set(CURLOPT_PROXY_CAINFO, file.constData()));
}

bool Transfer::configureCallbacks() {
    const auto set = [this](CURLoption option, auto value) { return setOption(m_easy, option, value); };
    return set(CURLOPT_READFUNCTION, &Transfer::readBody) && set(CURLOPT_READDATA, this) &&
           set(CURLOPT_SEEKFUNCTION, &Transfer::seekBody) && set(CURLOPT_SEEKDATA, this) &&
           set(CURLOPT_HEADERFUNCTION, &Transfer::takeHeader) && set(CURLOPT_HEADERDATA, this) &&
           set(CURLOPT_WRITEFUNCTION, &Transfer::takeBody) && set(CURLOPT_WRITEDATA, this);
}

std::int64_t Transfer::sent() const {
    curl_off_t count = 0;
    curl_easy_getinfo(m_easy, CURLINFO_SIZE_UPLOAD_T, &count);
    return count;
}

bool Transfer::isAnswerWaiting() const {
    pollfd socket = {m_socket, POLLIN, 0};
    return m_reply.received() == 0 && ::poll(&socket, 1, 0) > 0 && (socket.revents & POLLIN) != 0;
}

void Transfer::resume() {
    if (std::exchange(m_heldBack, false)) {
        curl_easy_pause(m_easy, CURLPAUSE_CONT);
    }
}

bool Transfer::onTick() {
    const auto moved = m_reply.received() + static_cast<std::uint64_t>(sent());
    if (moved != m_bytesMoved) {
        m_bytesMoved = moved;
        m_idleTicksLeft = m_idleTicks;
        return true;
    }
    // Rationale: ticks are counted, not the clock. While the main thread is busy or the machine sleeps no
    // tick passes, so that our own silence is never taken for the server's.
    if (--m_idleTicksLeft > 0) {
        return true;
    }
    m_ended = Ended::kStalled;
    return false;
}

void Transfer::reportProgress() {
    if (m_request.body.size() > 0) {
        m_listener.onSent(static_cast<double>(sent()) / static_cast<double>(m_request.body.size()));
    }
}

void Transfer::finish(CURLcode code) {
    m_listener.onFinished(outcome(code));
}

Answer Transfer::outcome(CURLcode code) {
    long status = 0;
    curl_off_t length = -1;
    curl_easy_getinfo(m_easy, CURLINFO_RESPONSE_CODE, &status);
    curl_easy_getinfo(m_easy, CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &length);
    // A server may answer early, in full, and close: the rest of the body cannot be sent, the answer counts.
    const bool whole = code == CURLE_OK || (code == CURLE_SEND_ERROR && m_reply.hasBodyOf(length));
    Answer result;
    result.sent = sent();
    result.wholeBodySent = m_request.body.size() > 0 && result.sent >= m_request.body.size();
    if (whole && m_reply.hasHeaders() && status >= 200 && m_ended == Ended::kNot) {
        char* location = nullptr;
        curl_easy_getinfo(m_easy, CURLINFO_EFFECTIVE_URL, &location);
        result.location = location ? location : "";
        result.status = static_cast<std::int32_t>(status);
        result.headers = m_reply.headers();
        result.body = m_reply.body();
    } else {
        result.problem = failureOf(m_ended, code, m_request.host);
    }
    return result;
}

std::size_t Transfer::readBody(char* buffer, std::size_t size, std::size_t count, void* self) {
    auto& transfer = *static_cast<Transfer*>(self);
    auto& body = transfer.m_request.body;
    const std::int64_t place = body.position();
    std::size_t done = 0;
    if (!body.read(buffer, size * count, done)) {
        transfer.m_ended = Ended::kBodyUnreadable;
        return CURL_READFUNC_ABORT;
    }
    // Rationale: libcurl looks for an answer before it asks for more of the body, and reading that takes a
    // while. A server that has answered and closed meanwhile makes sending fail, and with it the answer would
    // be lost.
    if (transfer.isAnswerWaiting() && body.rewindTo(place)) {
        transfer.m_heldBack = true;
        return CURL_READFUNC_PAUSE;
    }
    return done;
}

int Transfer::seekBody(void* self, curl_off_t offset, int origin) {
    auto& body = static_cast<Transfer*>(self)->m_request.body;
    return origin == SEEK_SET && body.rewindTo(offset) ? CURL_SEEKFUNC_OK : CURL_SEEKFUNC_FAIL;
}

std::size_t Transfer::takeHeader(char* data, std::size_t size, std::size_t count, void* self) {
    auto& transfer = *static_cast<Transfer*>(self);
    if (!transfer.m_reply.addHeaderLine({data, size * count})) {
        transfer.m_ended = Ended::kReplyTooLarge;
        return 0;
    }
    return size * count;
}

std::size_t Transfer::takeBody(char* data, std::size_t size, std::size_t count, void* self) {
    auto& transfer = *static_cast<Transfer*>(self);
    if (!transfer.m_reply.addBody({data, size * count})) {
        transfer.m_ended = Ended::kReplyTooLarge;
        return 0;
    }
    return size * count;
}

} // namespace xbr::host
