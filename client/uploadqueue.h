#pragma once

#include "auth/oauth2client.h"
#include "framework/abi/progress.h"
#include "release/payload.h"
#include "release/payloadlease.h"
#include "ui/tracks/tracklistcomponent.h"

#include <cstddef>
#include <optional>

namespace brindlex {

/// Moves the tracks to the service, one after the other or all as one album. It has no list of its own: what
/// is left to do follows from the tracks' states.
class UploadQueue {
public:
    /// `owner` receives the posted messages "uploadNext" and "refreshAccessToken".
    UploadQueue(OAuth2Client& client, TrackListComponent& tracks, xbr::IObserver& owner);
    UploadQueue(const UploadQueue&) = delete;
    UploadQueue& operator=(const UploadQueue&) = delete;

    /// Removes the files of a transfer that is still under way; the client must have ended it.
    ~UploadQueue();

    /// Begins again at the first track ("upload").
    void restart();

    /// Sends the next track, or the album ("uploadNext"). Nothing happens while the client is not ready, a
    /// transfer or its preparation is under way, or no track qualifies. While another panel's is, this one
    /// waits for its turn.
    void startUpload();

private:
    /// What one transfer sends. It is judged by this, as the list may have changed when the reply comes.
    struct Transfer {
        UploadMode mode = UploadMode::kSingles;
        Tracks tracks;
    };

    Transfer select();
    xbr::Ref<IngestionRequest> build(const Transfer& transfer, xbr::IProgress& progress) const;
    void send(const Transfer& transfer);
    /// False when tracks or mode changed while the progress indicator ran the event loop.
    bool isStillWanted(const Transfer& transfer) const;

    void onUploadEvent(const xbr::IMessage& message, xbr::IWebRequest& request);
    void onLoadEnd(xbr::IWebRequest& request);
    void onProgress(double progress);
    void setOutcome(TrackUploadState outcome);
    void endTransfer();

    OAuth2Client& m_client;
    TrackListComponent& m_tracks;
    xbr::IObserver& m_owner;
    PayloadLease m_lease;                     ///< held from before the build until the transfer is over
    std::optional<Transfer> m_transfer;       ///< what is on its way
    std::size_t m_currentTrackIndex = 0;      ///< the track that one-by-one mode handles
    UploadMode m_mode = UploadMode::kSingles; ///< in which the user pressed "upload"
};

} // namespace brindlex
