#include "client/uploadqueue.h"

#include "client/uploadreply.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/modulecomponent.h"
#include "release/payloadbuilder.h"
#include "ui/tracks/requiredfields.h"
#include "ui/tracks/trackitem.h"

#include <algorithm>
#include <unordered_set>

namespace brindlex {

namespace {

constexpr std::int32_t kMayCancel = 1;

// The host's two ways of saying "with the next turn of the event loop".
constexpr std::int32_t kDeferred = -1;
constexpr std::int32_t kNoDelay = 0;

} // namespace

UploadQueue::UploadQueue(OAuth2Client& client, TrackListComponent& tracks, xbr::IObserver& owner)
    : m_client(client),
      m_tracks(tracks),
      m_owner(owner),
      m_lease([&owner] { xbr::post(owner, "uploadNext", kDeferred); }) {}

UploadQueue::~UploadQueue() {
    if (m_lease.isHeld()) {
        cleanupPayload(); // of a transfer whose reply has nobody to come to
    }
}

void UploadQueue::restart() {
    m_currentTrackIndex = 0;
    m_mode = m_tracks.mode();
    startUpload();
}

void UploadQueue::startUpload() {
    // Another mode than the one in which the user pressed "upload": what is done as singles would go again
    // with an album, and nobody asked for that.
    const bool isAsked = m_tracks.mode() == m_mode;
    if (!m_client.isReady() || !isAsked || m_lease.isHeld() || !m_lease.take()) {
        return;
    }
    const Transfer transfer = select();
    if (!transfer.tracks.empty()) {
        prepareAndSend(transfer);
    }
    if (!m_transfer) {
        m_lease.giveBack();
    }
}

UploadQueue::Transfer UploadQueue::select() {
    Transfer transfer;
    transfer.mode = m_tracks.mode();
    if (transfer.mode == UploadMode::kSingles) {
        if (TrackItem* track = chooseTrack()) {
            transfer.tracks.push_back(xbr::Ref<TrackItem>::share(track));
        }
        return transfer;
    }
    bool anyWaiting = false;
    forEachTrack(m_tracks.model(), [&](TrackItem& track) {
        anyWaiting = anyWaiting || track.state == TrackUploadState::kNone;
        transfer.tracks.push_back(xbr::Ref<TrackItem>::share(&track));
    });
    return anyWaiting ? transfer : Transfer{};
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

xbr::Ref<IngestionRequest> UploadQueue::build(const Transfer& transfer, xbr::IProgress& progress) const {
    const std::string& clientId = m_client.configuration().consumerKey;
    // Copies: who edits a track while the payload is put together must not get a release that mixes both.
    std::vector<xbr::Ref<TrackMetadata>> records;
    std::vector<xbr::Url> files;
    for (const auto& track : transfer.tracks) {
        records.push_back(xbr::make<TrackMetadata>(track->metadata->fields()));
        files.push_back(track->file);
    }
    return transfer.mode == UploadMode::kAlbum
               ? buildAlbumPayload(records, files, clientId, progress)
               : buildTrackPayload(*records.front(), files.front(), clientId, progress);
}

void UploadQueue::prepareAndSend(const Transfer& transfer) {
    const auto indicator = xbr::createHostObject<xbr::IProgressIndicator>();
    const auto progress = xbr::query<xbr::IProgress>(indicator.get());
    if (!progress || !clearPlace()) {
        return;
    }
    const std::string title = xbr::translate("Preparing Brindlex Upload");
    indicator->setTitle(xbr::toText(title));
    indicator->setOption(kMayCancel);
    indicator->begin();
    const auto request = build(transfer, *progress);
    const bool isWanted = request && !progress->isCancelled() && isStillWanted(transfer);
    if (isWanted &&
        m_client.sendAuthorizedRequest(
            [this](const auto& message, auto& sent) { onUploadEvent(message, sent); }, *request)) {
        markSent(transfer);
    } else {
        cleanupPayload();
    }
    indicator->end();
}

bool UploadQueue::clearPlace() {
    if (isPayloadOnDisk()) {
        cleanupPayload(); // of a transfer that was aborted
    }
    return !isPayloadOnDisk();
}

bool UploadQueue::isStillWanted(const Transfer& transfer) const {
    std::unordered_set<const TrackItem*> listed;
    forEachTrack(m_tracks.model(), [&](const TrackItem& track) { listed.insert(&track); });
    return m_tracks.mode() == transfer.mode &&
           std::all_of(transfer.tracks.begin(), transfer.tracks.end(),
                       [&](const auto& track) { return listed.contains(track.get()); });
}

void UploadQueue::markSent(const Transfer& transfer) {
    m_transfer = transfer;
    for (const auto& track : transfer.tracks) {
        m_tracks.setCurrentUploadItem(track.get());
        m_tracks.updateEnabled();
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
    const UploadMode mode = m_transfer->mode;
    for (const auto& track : m_transfer->tracks) {
        track->state = stateAfter(outcome, *track);
    }
    if (outcome == TrackUploadState::kMissingInformation) {
        m_tracks.validateForUpload(Marks::kSet);
    }
    m_tracks.setCurrentUploadItem(nullptr);
    if (mode == UploadMode::kSingles && countTracks(m_tracks.model()) != 1) {
        xbr::post(m_owner, "uploadNext", kDeferred);
    }
    if (xbr::isUnauthorized(request)) {
        xbr::post(m_owner, "refreshAccessToken", kNoDelay);
    }
    cleanupPayload();
    endTransfer();
}

TrackUploadState UploadQueue::stateAfter(TrackUploadState outcome, const TrackItem& track) const {
    // A complete track of a rejected album goes again with the rest once they are complete. A single that the
    // service found incomplete is shown so even when all we ask for is there: it went alone, so there is no
    // other track the answer could mean.
    const bool goesAgain = m_transfer->mode == UploadMode::kAlbum &&
                           outcome == TrackUploadState::kMissingInformation && isComplete(*track.metadata);
    return goesAgain ? TrackUploadState::kNone : outcome;
}

void UploadQueue::onProgress(double progress) {
    for (const auto& track : m_transfer->tracks) {
        track->progress = progress;
    }
    auto& model = m_tracks.model();
    for (std::size_t i = 0; i < countTracks(model); ++i) {
        if (trackAt(model, i).uploading) {
            model.signalItemChanged(static_cast<std::int32_t>(i));
        }
    }
}

void UploadQueue::onAbort() {
    for (const auto& track : m_transfer->tracks) {
        track->state = TrackUploadState::kFailed;
    }
    m_tracks.setCurrentUploadItem(nullptr);
    endTransfer(); // the files stay until the next payload is built
}

void UploadQueue::endTransfer() {
    m_transfer.reset();
    m_lease.giveBack();
}

} // namespace brindlex
