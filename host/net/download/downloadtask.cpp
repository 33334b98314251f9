#include "host/net/download/downloadtask.h"

#include "framework/abi/filesystem.h"
#include "framework/support/data/url.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "host/base/mainthread.h"
#include "host/base/textscan.h"
#include "host/net/http/request.h"
#include "host/net/http/requesturl.h"
#include "host/net/http/transferloop.h"

#include <algorithm>
#include <deque>
#include <vector>

namespace xbr::host {

namespace {

constexpr std::int32_t kNotModified = 304;

std::deque<DownloadTask*> g_waiting; ///< for a turn to use the network
std::vector<DownloadTask*> g_running;

bool isSuccess(std::int32_t status) {
    return status >= 200 && status <= 299;
}

} // namespace

DownloadSource downloadSource(std::string_view url) {
    const std::string protocol = Url(url).protocol();
    if (protocol == "file" || protocol == "resource") {
        return DownloadSource::kFile;
    }
    const bool isWeb = (protocol == "http" || protocol == "https") && requestHost(url);
    return isWeb ? DownloadSource::kWeb : DownloadSource::kNone;
}

bool mayBeKept(std::string_view cacheControl) {
    while (!cacheControl.empty()) {
        const auto comma = std::min(cacheControl.find(','), cacheControl.size());
        if (isSameHeader(trim(cacheControl.substr(0, comma)), "no-store")) {
            return false;
        }
        cacheControl.remove_prefix(std::min(comma + 1, cacheControl.size()));
    }
    return true;
}

void DownloadTask::giveTurns() {
    while (g_running.size() < kTurns && !g_waiting.empty()) {
        DownloadTask* const next = g_waiting.front();
        g_waiting.pop_front();
        g_running.push_back(next);
        if (!next->send()) {
            post(*next, "fail"); // the turn may have come inside `start`
        }
    }
}

void DownloadTask::giveUpTurn() {
    std::erase(g_waiting, this);
    if (std::erase(g_running, this) > 0) {
        giveTurns();
    }
}

void DownloadTask::endAll() {
    auto ending = std::exchange(g_waiting, {});
    ending.insert(ending.end(), g_running.begin(), g_running.end());
    g_running.clear();
    for (DownloadTask* task : ending) {
        task->endSilently();
    }
}

DownloadTask::~DownloadTask() {
    giveUpTurn();
    endTransfer();
    XBRGetSignalHandler()->forgetObserver(this);
    XBRGetSignalHandler()->forgetSubject(this);
}

Result DownloadTask::setCopy(Text entityTag, Text lastModified) noexcept {
    if (m_started) {
        return kUnexpected;
    }
    if (hasControls(view(entityTag)) || hasControls(view(lastModified))) {
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
        g_waiting.push_back(this);
        giveTurns();
    }
    return kOk;
}

Result DownloadTask::cancel() noexcept {
    if (m_state != DownloadState::kRunning) {
        return kFalse;
    }
    endSilently();
    giveUpTurn();
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
    const bool isSecure = Url(m_location).protocol() == "https";
    auto transfer = Transfer::create(
        {"GET", m_location, *host, std::move(headers), {}, isSecure ? "https" : "http,https"}, *this);
    if (!transfer || !loop.start(*transfer)) {
        return false;
    }
    m_transfer = std::move(transfer);
    return true;
}

void DownloadTask::onFinished(Answer outcome) {
    const auto self = Ref<DownloadTask>::share(this);
    // Kept until we return: it is the caller.
    const auto transfer = std::move(m_transfer);
    if (m_state != DownloadState::kRunning) {
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
    m_location = std::move(outcome.location);
    finish(DownloadState::kComplete);
}

void DownloadTask::finish(DownloadState state) {
    const auto self = Ref<DownloadTask>::share(this);
    m_state = state;
    giveUpTurn();
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
            mayBeKept(m_headers[ReplyHeaders::kCacheControl])};
}

} // namespace xbr::host
