#pragma once

#include "framework/abi/download.h"
#include "framework/abi/message.h"
#include "framework/support/objects/object.h"
#include "host/net/http/transfer.h"

#include <memory>
#include <string>
#include <string_view>

namespace xbr::host {

enum class DownloadSource {
    kNone, ///< not a URL that documents are taken from
    kWeb,
    kFile, ///< the file system: files, and resources of modules
};

DownloadSource downloadSource(std::string_view url);

/// What the header Cache-Control says about a cache of the user's own (RFC 9111, section 5.2.2.5).
bool mayBeKept(std::string_view cacheControl);

/// One download, over the web or from the file system. Few use the network at a time: a feed may ask for many
/// pictures at once, and an upload beside them should not notice.
class DownloadTask final : public Object<IDownloadTask, ISubject, IObserver>, private ITransferListener {
public:
    static constexpr int kTurns = 6;

    /// Ends all without a message.
    static void endAll();

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
    static void giveTurns();
    void giveUpTurn();
    void endSilently();
    bool send();
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
    std::string m_knownTag;
    std::string m_knownDate;
    std::unique_ptr<Transfer> m_transfer;
    Ref<IStream> m_data;
    ReplyHeaders m_headers;
};

} // namespace xbr::host
