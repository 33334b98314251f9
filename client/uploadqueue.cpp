#include "client/uploadqueue.h"

#include "framework/support/data/attributes.h"
#include "framework/support/data/memorystream.h"
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

// The service tells a missing property by this text only; there is no code for it.
constexpr std::string_view kMissingProperty = "did not contain a required property";

/// The indicator of a preparation; taken off the screen with this.
class Preparation {
public:
    Preparation()
        : m_indicator(xbr::createHostObject<xbr::IProgressIndicator>()),
          m_progress(xbr::query<xbr::IProgress>(m_indicator.get())) {
        if (m_progress) {
            const std::string title = xbr::translate("Preparing Brindlex Upload");
            m_indicator->setTitle(xbr::toText(title));
            m_indicator->setOption(kMayCancel);
            m_indicator->begin();
        }
    }
    Preparation(const Preparation&) = delete;
    Preparation& operator=(const Preparation&) = delete;
    ~Preparation() {
        if (m_progress) {
            m_indicator->end();
        }
    }

    /// Null where the host offers no indicator.
    xbr::IProgress* progress() const { return m_progress.get(); }

private:
    xbr::Ref<xbr::IProgressIndicator> m_indicator;
    xbr::Ref<xbr::IProgress> m_progress;
};

/// False when something lies in the payload's place and cannot be removed.
bool clearPlace() {
    if (isPayloadOnDisk()) {
        cleanupPayload(); // of a transfer that was aborted
    }
    return !isPayloadOnDisk();
}

/// What the service's answer means: kDone, kMissingInformation or kFailed.
TrackUploadState judge(xbr::IWebRequest& request) {
    if (xbr::isSuccess(request)) {
        return TrackUploadState::kDone;
    }
    xbr::Ref<xbr::IStream> body;
    const bool hasBody = request.getResponseBody(body.out()) == xbr::kOk && xbr::rewind(*body);
    const auto reply = hasBody ? xbr::readJson(*body) : nullptr;
    const bool isMissing = reply && reply->getString("errors").find(kMissingProperty) != std::string::npos;
    return isMissing ? TrackUploadState::kMissingInformation : TrackUploadState::kFailed;
}

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
        send(transfer);
    }
    if (!m_transfer) {
        m_lease.giveBack();
    }
}

UploadQueue::Transfer UploadQueue::select() {
    Transfer transfer{m_tracks.mode(), tracksOf(m_tracks.model())};
    auto& tracks = transfer.tracks;
    const auto waiting = std::find_if(tracks.begin(), tracks.end(), [](const auto& track) {
        return track->state == TrackUploadState::kNone;
    });
    const bool isAnyWaiting = waiting != tracks.end();
    if (transfer.mode == UploadMode::kAlbum) {
        return isAnyWaiting ? transfer : Transfer{};
    }
    // Nothing is waiting: the track after the present one is sent again unless it is done. With several
    // tracks a failed first one is not: "Reset" in its context menu is the way to send it again.
    const auto next = m_currentTrackIndex + 1 < tracks.size() ? m_currentTrackIndex + 1 : 0;
    if (!isAnyWaiting && next == 0 && tracks.size() != 1) {
        return {};
    }
    m_currentTrackIndex = isAnyWaiting ? static_cast<std::size_t>(waiting - tracks.begin()) : next;
    const auto track = tracks[m_currentTrackIndex];
    return {transfer.mode, track->state == TrackUploadState::kDone ? Tracks{} : Tracks{track}};
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
    return buildPayload(records, files, clientId, progress);
}

void UploadQueue::send(const Transfer& transfer) {
    if (!clearPlace()) {
        return;
    }
    const Preparation preparation;
    auto* progress = preparation.progress();
    if (!progress) {
        return;
    }
    const auto request = build(transfer, *progress);
    const auto handler = [this](const auto& message, auto& sent) { onUploadEvent(message, sent); };
    if (!request || progress->isCancelled() || !isStillWanted(transfer) ||
        !m_client.sendAuthorizedRequest(handler, *request)) {
        cleanupPayload();
        return;
    }
    m_transfer = transfer;
    for (const auto& track : transfer.tracks) {
        m_tracks.setCurrentUploadItem(track.get());
        m_tracks.updateEnabled();
    }
    m_tracks.validateForUpload(Marks::kClear);
}

bool UploadQueue::isStillWanted(const Transfer& transfer) const {
    std::unordered_set<const TrackItem*> listed;
    for (const auto& track : tracksOf(m_tracks.model())) {
        listed.insert(track.get());
    }
    return m_tracks.mode() == transfer.mode &&
           std::all_of(transfer.tracks.begin(), transfer.tracks.end(),
                       [&](const auto& track) { return listed.contains(track.get()); });
}

void UploadQueue::onUploadEvent(const xbr::IMessage& message, xbr::IWebRequest& request) {
    const auto owner = xbr::Ref<xbr::IObserver>::share(&m_owner); // an observer may drop the panel in here
    if (xbr::isNamed(message, "onloadend")) {
        onLoadEnd(request);
    } else if (xbr::isNamed(message, "onprogress")) {
        onProgress(xbr::numberOf(message.argument(0)));
    } else if (xbr::isNamed(message, "onabort")) {
        setOutcome(TrackUploadState::kFailed);
        endTransfer(); // the files stay until the next payload is built
    }
}

void UploadQueue::onLoadEnd(xbr::IWebRequest& request) {
    const bool isSingle = m_transfer->mode == UploadMode::kSingles;
    setOutcome(judge(request));
    if (isSingle && m_tracks.model().countRows() != 1) {
        xbr::post(m_owner, "uploadNext", kDeferred);
    }
    if (xbr::isUnauthorized(request)) {
        xbr::post(m_owner, "refreshAccessToken", kNoDelay);
    }
    cleanupPayload();
    endTransfer();
}

void UploadQueue::setOutcome(TrackUploadState outcome) {
    const bool isMissing = outcome == TrackUploadState::kMissingInformation;
    const bool isAlbum = m_transfer->mode == UploadMode::kAlbum;
    for (const auto& track : m_transfer->tracks) {
        // A complete track of a rejected album goes again with the rest once they are complete. A single that
        // the service found incomplete is shown so even when all we ask for is there: it went alone, so there
        // is no other track the answer could mean.
        track->state =
            isMissing && isAlbum && isComplete(*track->metadata) ? TrackUploadState::kNone : outcome;
    }
    if (isMissing) {
        m_tracks.validateForUpload(Marks::kSet);
    }
    m_tracks.setCurrentUploadItem(nullptr);
}

void UploadQueue::onProgress(double progress) {
    for (const auto& track : m_transfer->tracks) {
        track->progress = progress;
    }
    auto& model = m_tracks.model();
    for (std::int32_t row = 0; row < model.countRows(); ++row) {
        if (trackAt(model, static_cast<std::size_t>(row)).uploading) {
            model.signalItemChanged(row);
        }
    }
}

void UploadQueue::endTransfer() {
    m_transfer.reset();
    m_lease.giveBack();
}

} // namespace brindlex
