#pragma once

#include "framework/abi/download.h"
#include "framework/abi/message.h"
#include "framework/support/objects/object.h"
#include "host/net/download/downloadqueue.h"
#include "host/net/download/downloadrules.h"
#include "host/net/http/transfer.h"

#include <memory>
#include <string>

namespace xbr::host {

/// One download, over the web or from the file system.
class DownloadTask final : public Object<IDownloadTask, ISubject, IObserver>,
                           private Download,
                           private ITransferListener {
public:
    DownloadTask(std::string url, DownloadSource source) : m_location(std::move(url)), m_source(source) {}
    ~DownloadTask() override;

    Result setCopy(Text entityTag, Text lastModified) noexcept override;
    Result start() noexcept override;
    Result cancel() noexcept override;
    DownloadState state() const noexcept override { return m_state; }
    Text location() const noexcept override;
    Text mimeType() const noexcept override;
    Result getData(IStream** out) noexcept override;
    CopyTerms copyTerms() const noexcept override;

    /// What the task posted to itself.
    void notify(ISubject* subject, IMessage* message) noexcept override;

private:
    void takeTurn() override;
    void endSilently() override;
    bool send();
    bool follow(const Answer& outcome);
    void endTransfer();
    void openFile();
    void complete(Answer outcome);
    void finish(DownloadState state);

    void onSent(double) override {}
    void onFinished(Answer outcome) override;

    std::string m_location;
    DownloadSource m_source;
    DownloadState m_state = DownloadState::kIdle;
    bool m_started = false;
    int m_redirects = 0;
    std::string m_knownTag;
    std::string m_knownDate;
    std::unique_ptr<Transfer> m_transfer;
    Ref<IStream> m_data;
    ReplyHeaders m_headers;
    CachePolicy m_policy;
};

} // namespace xbr::host
