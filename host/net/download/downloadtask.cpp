#include "host/net/download/downloadtask.h"

#include "framework/abi/filesystem.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "host/base/mainthread.h"
#include "host/net/http/request.h"
#include "host/net/http/requesturl.h"
#include "host/net/http/transferloop.h"

#include <algorithm>

namespace xbr::host {

namespace {

constexpr int kMaximumRedirects = 5;

constexpr std::int32_t kNotModified = 304;

bool isRedirect(std::int32_t status) {
    static constexpr std::int32_t kRedirects[] = {301, 302, 303, 307, 308};
    return std::find(std::begin(kRedirects), std::end(kRedirects), status) != std::end(kRedirects);
}

bool isSuccess(std::int32_t status) {
    return status >= 200 && status <= 299;
}

} // namespace

DownloadTask::~DownloadTask() {
    DownloadQueue::leave(*this);
    endTransfer();
    XBRGetSignalHandler()->forgetObserver(this);
    XBRGetSignalHandler()->forgetSubject(this);
}

Result DownloadTask::setCopy(Text entityTag, Text lastModified) noexcept {
    if (m_started) {
        return kUnexpected;
    }
    if (hasControlCharacter(view(entityTag)) || hasControlCharacter(view(lastModified))) {
        return kInvalidArgument;
    }
    m_knownTag = view(entityTag);
    m_knownDate = view(lastModified);
    return kOk;
}

Result DownloadTask::start() noexcept {
    assertMainThread();
    if (m_started) {
        return kUnexpected;
    }
    m_started = true;
    m_state = DownloadState::kRunning;
    if (m_source == DownloadSource::kFile) {
        post(*this, "open");
    } else {
        DownloadQueue::enter(*this);
    }
    return kOk;
}

Result DownloadTask::cancel() noexcept {
    if (m_state != DownloadState::kRunning) {
        return kFalse;
    }
    endSilently();
    DownloadQueue::leave(*this);
    return kOk;
}

void DownloadTask::endSilently() {
    m_state = DownloadState::kIdle;
    endTransfer();
    XBRGetSignalHandler()->forgetObserver(this);
}

void DownloadTask::endTransfer() {
    if (m_transfer) {
        TransferLoop::instance().end(std::move(m_transfer));
    }
}

void DownloadTask::takeTurn() {
    if (!send()) {
        post(*this, "fail"); // the turn may have come inside `start`
    }
}

void DownloadTask::notify(ISubject*, IMessage* message) noexcept {
    if (m_state != DownloadState::kRunning) {
        return;
    }
    if (isNamed(*message, "open")) {
        openFile();
    } else {
        finish(DownloadState::kFailed);
    }
}

void DownloadTask::openFile() {
    const bool isOpen = XBRGetFileSystem()->openForReading(toText(m_location), m_data.out()) == kOk;
    finish(isOpen ? DownloadState::kComplete : DownloadState::kFailed);
}

bool DownloadTask::send() {
    const auto host = requestHost(m_location);
    if (!host) {
        return false;
    }
    RequestHeaders headers;
    if (!m_knownTag.empty()) {
        headers.add("If-None-Match", m_knownTag);
    }
    if (!m_knownDate.empty()) {
        headers.add("If-Modified-Since", m_knownDate);
    }
    auto& loop = TransferLoop::instance();
    auto transfer = Transfer::create({"GET", m_location, *host, std::move(headers), {}}, *this);
    if (!transfer || !loop.start(*transfer)) {
        return false;
    }
    m_transfer = std::move(transfer);
    return true;
}

bool DownloadTask::follow(const Answer& outcome) {
    if (!isRedirect(outcome.status) || m_redirects == kMaximumRedirects) {
        return false;
    }
    auto target = redirectTarget(m_location, outcome.headers[ReplyHeaders::kLocation]);
    if (!target) {
        return false;
    }
    ++m_redirects;
    m_location = *std::move(target);
    return send();
}

void DownloadTask::onFinished(Answer outcome) {
    const auto self = Ref<DownloadTask>::share(this);
    // Kept until we return: it is the caller.
    const auto transfer = std::move(m_transfer);
    if (m_state != DownloadState::kRunning || follow(outcome)) {
        return;
    }
    const bool asksForChange = !m_knownTag.empty() || !m_knownDate.empty();
    if (isSuccess(outcome.status) || (outcome.status == kNotModified && asksForChange)) {
        complete(std::move(outcome));
    } else {
        finish(DownloadState::kFailed);
    }
}

void DownloadTask::complete(Answer outcome) {
    if (outcome.status != kNotModified) {
        m_data = outcome.body ? std::move(outcome.body) : make<MemoryStream>();
    }
    m_headers = std::move(outcome.headers);
    m_policy = cachePolicy(m_headers[ReplyHeaders::kCacheControl], m_headers[ReplyHeaders::kAge]);
    finish(DownloadState::kComplete);
}

void DownloadTask::finish(DownloadState state) {
    const auto self = Ref<DownloadTask>::share(this);
    m_state = state;
    DownloadQueue::leave(*this);
    signal(*this, "stateChanged");
}

Text DownloadTask::location() const noexcept {
    return toText(m_location);
}

Text DownloadTask::mimeType() const noexcept {
    return toText(m_headers[ReplyHeaders::kContentType]);
}

Result DownloadTask::getData(IStream** out) noexcept {
    *out = nullptr;
    if (m_state != DownloadState::kComplete || !m_data) {
        return kFalse;
    }
    rewind(*m_data);
    *out = Ref<IStream>(m_data).detach();
    return kOk;
}

CopyTerms DownloadTask::copyTerms() const noexcept {
    return {toText(m_headers[ReplyHeaders::kEntityTag]), toText(m_headers[ReplyHeaders::kLastModified]),
            m_policy.lifetime, m_policy.mayBeKept};
}

} // namespace xbr::host
