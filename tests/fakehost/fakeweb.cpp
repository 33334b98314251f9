#include "tests/fakehost/fakeweb.h"

#include "framework/support/data/memorystream.h"
#include "framework/support/objects/message.h"
#include "tests/fakehost/fakehost.h"

#include <algorithm>

namespace fakehost {

using xbr::DownloadState;

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

class Entry final : public xbr::Object<xbr::IFeedEntry> {
public:
    explicit Entry(FakeEntry entry) : m_entry(std::move(entry)) {}

    xbr::Text title() const noexcept override { return m_texts.lend(m_entry.title); }
    xbr::Text summary() const noexcept override { return m_texts.lend(m_entry.summary); }
    xbr::Text content() const noexcept override { return m_texts.lend(m_entry.content); }
    xbr::Result getPublished(std::int64_t* time) const noexcept override {
        *time = m_entry.published.value_or(0);
        return m_entry.published ? xbr::kOk : xbr::kFalse;
    }
    std::int32_t countLinks() const noexcept override {
        return static_cast<std::int32_t>(m_entry.links.size());
    }
    xbr::Text linkAttribute(std::int32_t index, xbr::Text name) const noexcept override {
        const auto& link = m_entry.links.at(static_cast<std::size_t>(index));
        const auto found = link.find(xbr::toString(name));
        return found == link.end() ? xbr::Text{} : m_texts.lend(found->second);
    }
    std::int32_t countCategories() const noexcept override {
        return static_cast<std::int32_t>(m_entry.categories.size());
    }
    xbr::Text categoryTermAt(std::int32_t index) const noexcept override {
        return index < countCategories() ? m_texts.lend(m_entry.categories[static_cast<std::size_t>(index)])
                                         : xbr::Text{};
    }

private:
    FakeEntry m_entry;
    Lender m_texts;
};

class Feed final : public xbr::Object<xbr::IFeed> {
public:
    explicit Feed(const std::vector<FakeEntry>& entries) {
        for (const auto& entry : entries) {
            m_entries.push_back(xbr::make<Entry>(entry));
        }
    }
    xbr::Text title() const noexcept override { return {}; }
    std::int32_t countEntries() const noexcept override {
        return static_cast<std::int32_t>(m_entries.size());
    }
    xbr::IFeedEntry* entryAt(std::int32_t index) noexcept override {
        return m_entries.at(static_cast<std::size_t>(index)).get();
    }

private:
    std::vector<xbr::Ref<Entry>> m_entries;
};

} // namespace

class FakeDownloadTask final : public xbr::Object<xbr::IDownloadTask, xbr::ISubject> {
public:
    explicit FakeDownloadTask(std::string url) : m_started{std::move(url)} {}
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
        host().downloads.started.push_back(m_started);
        host().downloads.m_running.push_back(this);
        return xbr::kOk;
    }
    xbr::Result cancel() noexcept override {
        m_state = DownloadState::kIdle;
        return std::erase(host().downloads.m_running, this) > 0 ? xbr::kOk : xbr::kFalse;
    }
    DownloadState state() const noexcept override { return m_state; }
    xbr::Text location() const noexcept override { return m_texts.lend(url()); }
    xbr::Text mimeType() const noexcept override { return m_texts.lend("application/atom+xml"); }
    xbr::Result getData(xbr::IStream** out) noexcept override { return give(m_data, out); }
    xbr::CopyTerms copyTerms() const noexcept override {
        return {m_texts.lend(m_terms.entityTag), m_dates.lend(m_terms.lastModified), m_terms.mayBeKept};
    }

    const std::string& url() const { return m_started.url; }

    void end(DownloadState state, const std::string* data, const FakeTerms& terms) {
        const auto self = xbr::Ref<FakeDownloadTask>::share(this);
        cancel();
        m_state = state;
        m_terms = terms;
        if (data) {
            m_data = xbr::make<xbr::MemoryStream>();
            m_data->write(*data); // left at its end: who reads it goes to the start
        }
        xbr::signal(*this, "stateChanged");
        host().signals.pump();
    }

private:
    FakeDownloads::Started m_started;
    DownloadState m_state = DownloadState::kIdle;
    xbr::Ref<xbr::MemoryStream> m_data;
    FakeTerms m_terms;
    Lender m_texts;
    Lender m_dates;
};

bool FakeDownloads::end(const std::string& url, DownloadState state, const std::string* data,
                        const FakeTerms& terms) {
    const auto found = std::find_if(m_running.begin(), m_running.end(),
                                    [&](const auto* task) { return task->url() == url; });
    const bool runs = found != m_running.end();
    if (runs) {
        (*found)->end(state, data, terms);
    }
    return runs;
}

class FakeWebRequest final : public xbr::Object<xbr::IWebRequest> {
public:
    explicit FakeWebRequest(FakeWebService& service) : m_service(service) {}
    ~FakeWebRequest() override { leave(); }

    xbr::Result open(xbr::Text method, xbr::Text url, xbr::IWebCredentials* credentials) noexcept override {
        m_sent.method = xbr::view(method);
        m_sent.url = xbr::view(url);
        if (credentials) {
            m_sent.headers["Authorization"] = static_cast<FakeCredentials*>(credentials)->header;
        }
        return okUnlessItFails();
    }

    xbr::Result setHeader(xbr::Text name, xbr::Text value) noexcept override {
        m_sent.headers[xbr::toString(name)] = xbr::view(value);
        return okUnlessItFails();
    }

    xbr::Result send(xbr::IStream* body, xbr::IObserver* handler) noexcept override {
        if (fails()) {
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
        return giveUnlessItFails(m_reply, out);
    }
    xbr::Result getErrorText(xbr::IString** out) noexcept override { return xbr::giveText("", out); }

    void reply(std::int32_t status, const std::string& body) {
        m_status = status;
        if (!body.empty()) {
            m_reply = xbr::make<xbr::MemoryStream>();
            m_reply->write(body);
            xbr::rewind(*m_reply);
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
    xbr::Ref<xbr::MemoryStream> m_reply;
    xbr::Ref<xbr::IObserver> m_handler;
};

xbr::Result FakeWebService::createCredentials(xbr::IWebCredentials** out) noexcept {
    return giveUnlessItFails(xbr::make<FakeCredentials>(), out);
}

xbr::Result FakeWebService::createRequest(xbr::IWebRequest** out) noexcept {
    return giveUnlessItFails(xbr::make<FakeWebRequest>(*this), out);
}

xbr::Result FakeWebService::createTask(xbr::Text url, xbr::IDownloadTask** out) noexcept {
    const std::string text = xbr::toString(url);
    const std::string_view protocol = std::string_view(text).substr(0, text.find("://"));
    const auto allowed = {"http", "https", "file", "resource"};
    const bool isAllowed = std::find(allowed.begin(), allowed.end(), protocol) != allowed.end();
    return give(isAllowed ? xbr::make<FakeDownloadTask>(text) : nullptr, out, xbr::kInvalidArgument);
}

xbr::Result FakeWebService::readFeed(xbr::IStream* stream, xbr::Text location, xbr::Text,
                                     xbr::IFeed** out) noexcept {
    xbr::rewind(*stream);
    const auto found = documents.find(xbr::readAll(*stream));
    const bool isFeed = found != documents.end() && xbr::toString(location).find("://") != std::string::npos;
    return give(isFeed ? xbr::make<Feed>(found->second) : nullptr, out, xbr::kInvalidArgument);
}

void FakeWebService::answer(std::int32_t status, const std::string& body) {
    xbr::Ref<FakeWebRequest>::share(m_inFlight)->reply(status, body);
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
