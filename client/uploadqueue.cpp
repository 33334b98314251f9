#include "client/uploadqueue.h"

#include "client/uploadreply.h"
#include "framework/support/objects/hostobject.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/modulecomponent.h"
#include "release/payloadbuilder.h"
#include "ui/tracks/tracks.h"

#include <algorithm>
#include <unordered_set>

namespace brindlex {

namespace {

constexpr std::int32_t kMayCancel = 1;

// The host's two ways of saying "with the next turn of the event loop".
constexpr std::int32_t kDeferred = -1;
constexpr std::int32_t kNoDelay = 0;

constexpr std::int32_t kRetryDelay = 200; // milliseconds

// The progress indicator runs the event loop while a payload is put together. There is one payload folder, so
// no queue may start a second one in there, nor take the files away.
bool g_preparing = false;

} // namespace

UploadQueue::UploadQueue(OAuth2Client& client, TrackListComponent& tracks, xbr::IObserver& owner)
    : m_client(client),
      m_tracks(tracks),
      m_owner(owner) {}

void UploadQueue::restart() {
    if (g_preparing) {
        return;
    }
    m_currentTrackIndex = 0;
    startUpload();
}

void UploadQueue::giveUp() {
    if (m_tracks.currentUploadItem() && !g_preparing) {
        cleanupPayload();
    }
}

void UploadQueue::startUpload() {
    if (!m_client.isReady() || m_tracks.currentUploadItem()) {
        return;
    }
    if (g_preparing) {
        xbr::post(m_owner, "uploadNext", kRetryDelay); // another panel's payload is in the making
        return;
    }
    if (const Selection selection = select(); !selection.tracks.empty()) {
        prepareAndSend(selection);
    }
}

UploadQueue::Selection UploadQueue::select() {
    Selection selection;
    selection.mode = m_tracks.mode();
    if (selection.mode == UploadMode::kSingles) {
        if (TrackItem* track = chooseTrack()) {
            selection.tracks.push_back(xbr::Ref<TrackItem>::share(track));
        }
        return selection;
    }
    bool anyWaiting = false;
    forEachTrack(m_tracks.model(), [&](TrackItem& track) {
        anyWaiting = anyWaiting || track.state == TrackUploadState::kNone;
        selection.tracks.push_back(xbr::Ref<TrackItem>::share(&track));
    });
    return anyWaiting ? selection : Selection{};
}

TrackItem* UploadQueue::chooseTrack() {
    const auto& model = m_tracks.model();
    const auto count = countTracks(model);
    for (std::size_t i = 0; i < count; ++i) {
        if (trackAt(model, i).state == TrackUploadState::kNone) {
            m_currentTrackIndex = i;
            return &trackAt(model, i);
        }
    }
    // Nothing is waiting: the track after the present one is sent again unless it is done. With several
    // tracks a failed first one is not: "Reset" in its context menu is the way to send it again.
    if (m_currentTrackIndex + 1 < count) {
        ++m_currentTrackIndex;
    } else if (count == 1) {
        m_currentTrackIndex = 0;
    } else {
        return nullptr;
    }
    TrackItem& track = trackAt(model, m_currentTrackIndex);
    return track.state == TrackUploadState::kDone ? nullptr : &track;
}

xbr::Ref<IngestionRequest> UploadQueue::build(const Selection& selection, xbr::IProgress& progress) const {
    const std::string& clientId = m_client.configuration().consumerKey;
    if (selection.mode == UploadMode::kSingles) {
        const TrackItem& track = *selection.tracks.front();
        return buildTrackPayload(*track.metadata, track.file, clientId, progress);
    }
    std::vector<xbr::Ref<TrackMetadata>> records;
    std::vector<xbr::Url> files;
    for (const auto& track : selection.tracks) {
        records.push_back(track->metadata);
        files.push_back(track->file);
    }
    return buildAlbumPayload(records, files, clientId, progress);
}

void UploadQueue::prepareAndSend(const Selection& selection) {
    const auto indicator = xbr::createHostObject<xbr::IProgressIndicator>();
    const auto progress = xbr::query<xbr::IProgress>(indicator.get());
    if (!progress) {
        return;
    }
    g_preparing = true;
    const std::string title = xbr::translate("Preparing Brindlex Upload");
    indicator->setTitle(xbr::toText(title));
    indicator->setOption(kMayCancel);
    indicator->begin();
    const auto request = build(selection, *progress);
    g_preparing = false;
    if (progress->isCancelled() || !isStillWanted(selection)) {
        cleanupPayload();
    } else if (request &&
               m_client.sendAuthorizedRequest(
                   [this](const auto& message, auto& sent) { onUploadEvent(message, sent); }, *request)) {
        markSent(selection);
    }
    indicator->end();
}

bool UploadQueue::isStillWanted(const Selection& selection) const {
    std::unordered_set<const TrackItem*> listed;
    forEachTrack(m_tracks.model(), [&](const TrackItem& track) { listed.insert(&track); });
    return m_tracks.mode() == selection.mode &&
           std::all_of(selection.tracks.begin(), selection.tracks.end(),
                       [&](const auto& track) { return listed.contains(track.get()); });
}

void UploadQueue::markSent(const Selection& selection) {
    for (const auto& track : selection.tracks) {
        m_tracks.setCurrentUploadItem(track.get());
        m_tracks.updateRemoveAllEnabled();
    }
    m_tracks.validateForUpload(Marks::kClear);
}

void UploadQueue::onUploadEvent(const xbr::IMessage& message, xbr::IWebRequest& request) {
    const auto owner = xbr::Ref<xbr::IObserver>::share(&m_owner); // an observer may drop the panel in here
    if (xbr::isNamed(message, "onloadend")) {
        onLoadEnd(request);
    } else if (xbr::isNamed(message, "onprogress")) {
        onProgress(xbr::numberOf(message.argument(0)));
    } else if (xbr::isNamed(message, "onabort")) {
        onAbort();
    }
}

void UploadQueue::onLoadEnd(xbr::IWebRequest& request) {
    const TrackUploadState outcome = judgeReply(request);
    if (isAlbum()) {
        judgeAlbum(outcome);
    } else {
        judgeTrack(outcome);
    }
    if (xbr::isUnauthorized(request)) {
        xbr::post(m_owner, "refreshAccessToken", kNoDelay);
    }
    if (!g_preparing) {
        cleanupPayload();
    }
}

void UploadQueue::judgeAlbum(TrackUploadState outcome) {
    const bool missing = outcome == TrackUploadState::kMissingInformation;
    forEachTrack(m_tracks.model(), [&](TrackItem& track) {
        // A complete track of a rejected album goes again with the rest once they are complete.
        track.state = missing && track.metadata->isComplete() ? TrackUploadState::kNone : outcome;
    });
    if (missing) {
        m_tracks.validateForUpload(Marks::kSet);
    }
    m_tracks.setCurrentUploadItem(nullptr);
}

void UploadQueue::judgeTrack(TrackUploadState outcome) {
    if (TrackItem* track = m_tracks.currentUploadItem()) {
        // Unlike in an album, a single that the service found incomplete is shown so even when all we ask for
        // is there: it went alone, so there is no other track the answer could mean.
        track->state = outcome;
    }
    if (outcome == TrackUploadState::kMissingInformation) {
        m_tracks.validateForUpload(Marks::kSet);
    }
    m_tracks.setCurrentUploadItem(nullptr);
    if (countTracks(m_tracks.model()) != 1) {
        xbr::post(m_owner, "uploadNext", kDeferred);
    }
}

void UploadQueue::onProgress(double progress) {
    const TrackItem* current = m_tracks.currentUploadItem();
    if (!current) {
        return;
    }
    auto& model = m_tracks.model();
    for (std::size_t i = 0; i < countTracks(model); ++i) {
        TrackItem& track = trackAt(model, i);
        if (isAlbum() || &track == current) {
            track.progress = progress;
            model.signalItemChanged(static_cast<std::int32_t>(i));
        }
    }
}

void UploadQueue::onAbort() {
    if (isAlbum()) {
        forEachTrack(m_tracks.model(), [](TrackItem& track) { track.state = TrackUploadState::kFailed; });
    } else if (TrackItem* track = m_tracks.currentUploadItem()) {
        track->state = TrackUploadState::kFailed;
    }
    m_tracks.setCurrentUploadItem(nullptr);
}

} // namespace brindlex
