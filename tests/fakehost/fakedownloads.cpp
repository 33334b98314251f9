#include "tests/fakehost/fakedownloads.h"

#include "framework/support/data/memorystream.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "tests/fakehost/fakehost.h"
#include "tests/fakehost/lender.h"

#include <algorithm>

namespace fakehost {

using xbr::DownloadState;

class FakeDownloadTask final : public xbr::Object<xbr::IDownloadTask, xbr::ISubject> {
public:
    FakeDownloadTask(FakeDownloads& service, std::string url)
        : m_service(service),
          m_started{std::move(url), {}, {}} {}
    ~FakeDownloadTask() override {
        cancel();
        XBRGetSignalHandler()->forgetSubject(this);
    }

    xbr::Result setCopy(xbr::Text entityTag, xbr::Text lastModified) noexcept override {
        m_started.entityTag = xbr::view(entityTag);
        m_started.lastModified = xbr::view(lastModified);
        return xbr::kOk;
    }
    xbr::Result start() noexcept override {
        m_state = DownloadState::kRunning;
        m_service.started.push_back(m_started);
        m_service.m_running.push_back(this);
        return xbr::kOk;
    }
    xbr::Result cancel() noexcept override {
        m_state = DownloadState::kIdle;
        return std::erase(m_service.m_running, this) > 0 ? xbr::kOk : xbr::kFalse;
    }
    DownloadState state() const noexcept override { return m_state; }
    xbr::Text location() const noexcept override { return m_texts.lend(m_started.url); }
    xbr::Text mimeType() const noexcept override { return m_texts.lend("application/atom+xml"); }
    xbr::Result getData(xbr::IStream** out) noexcept override {
        *out = xbr::Ref<xbr::IStream>(m_data).detach();
        return *out ? xbr::kOk : xbr::kFalse;
    }
    xbr::CopyTerms copyTerms() const noexcept override {
        return {m_texts.lend(m_terms.entityTag), m_dates.lend(m_terms.lastModified), m_terms.mayBeKept};
    }

    const std::string& url() const { return m_started.url; }

    void end(DownloadState state, const std::string* data, const FakeTerms& terms) {
        const auto self = xbr::Ref<FakeDownloadTask>::share(this);
        std::erase(m_service.m_running, this);
        m_state = state;
        m_terms = terms;
        if (data) {
            const auto stream = xbr::make<xbr::MemoryStream>();
            stream->write(*data); // left at its end: who reads it goes to the start
            m_data = stream;
        }
        xbr::signal(*this, "stateChanged");
        host().signals.pump();
    }

private:
    FakeDownloads& m_service;
    FakeDownloads::Started m_started;
    DownloadState m_state = DownloadState::kIdle;
    xbr::Ref<xbr::IStream> m_data;
    FakeTerms m_terms;
    Lender m_texts;
    Lender m_dates;
};

xbr::Result FakeDownloads::createTask(const std::string& url, xbr::IDownloadTask** out) {
    *out = nullptr;
    const auto isAllowed = [&](const char* protocol) { return url.starts_with(protocol); };
    if (!isAllowed("http://") && !isAllowed("https://") && !isAllowed("file://") &&
        !isAllowed("resource://")) {
        return xbr::kInvalidArgument;
    }
    *out = xbr::make<FakeDownloadTask>(*this, url).detach();
    return xbr::kOk;
}

FakeDownloadTask* FakeDownloads::find(const std::string& url) const {
    const auto found = std::find_if(m_running.begin(), m_running.end(),
                                    [&](const auto* task) { return task->url() == url; });
    return found == m_running.end() ? nullptr : *found;
}

bool FakeDownloads::complete(const std::string& url, const std::string& data, const FakeTerms& terms) {
    auto* task = find(url);
    if (task) {
        task->end(DownloadState::kComplete, &data, terms);
    }
    return task != nullptr;
}

bool FakeDownloads::unchanged(const std::string& url, const FakeTerms& terms) {
    auto* task = find(url);
    if (task) {
        task->end(DownloadState::kComplete, nullptr, terms);
    }
    return task != nullptr;
}

bool FakeDownloads::fail(const std::string& url) {
    auto* task = find(url);
    if (task) {
        task->end(DownloadState::kFailed, nullptr, {});
    }
    return task != nullptr;
}

} // namespace fakehost
