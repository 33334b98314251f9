#pragma once

#include "auth/oauth2client.h"
#include "framework/abi/progress.h"
#include "release/payload.h"
#include "ui/tracks/tracklistcomponent.h"

#include <cstddef>
#include <vector>

namespace brindlex {

/// Moves the tracks to the service, one after the other or all as one album. It has no list of its own: what
/// is left to do follows from the tracks' states.
class UploadQueue {
public:
    /// `owner` receives the posted messages "uploadNext" and "refreshAccessToken".
    UploadQueue(OAuth2Client& client, TrackListComponent& tracks, xbr::IObserver& owner);

    /// Begins again at the first track ("upload").
    void restart();

    /// The panel goes: removes the files of a transfer whose reply will have nobody to come to.
    void giveUp();

    /// Sends the next track, or the album ("uploadNext"). Nothing happens while the client is not ready, a
    /// transfer or its preparation is under way, or no track qualifies.
    void startUpload();

private:
    /// What one transfer sends.
    struct Selection {
        UploadMode mode = UploadMode::kSingles;
        std::vector<xbr::Ref<TrackItem>> tracks;
    };

    bool isAlbum() const { return m_tracks.mode() == UploadMode::kAlbum; }
    Selection select();
    TrackItem* chooseTrack();
    xbr::Ref<IngestionRequest> build(const Selection& selection, xbr::IProgress& progress) const;
    void prepareAndSend(const Selection& selection);
    void markSent(const Selection& selection);
    /// False when tracks or mode changed while the progress indicator ran the event loop.
    bool isStillWanted(const Selection& selection) const;

    void onUploadEvent(const xbr::IMessage& message, xbr::IWebRequest& request);
    void onLoadEnd(xbr::IWebRequest& request);
    void onProgress(double progress);
    void onAbort();
    void judgeAlbum(TrackUploadState outcome);
    void judgeTrack(TrackUploadState outcome);

    OAuth2Client& m_client;
    TrackListComponent& m_tracks;
    xbr::IObserver& m_owner;
    std::size_t m_currentTrackIndex = 0; ///< the track that one-by-one mode handles
};

} // namespace brindlex
