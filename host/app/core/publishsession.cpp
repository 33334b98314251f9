#include "host/app/core/publishsession.h"

#include "framework/abi/pluginmanager.h"
#include "framework/support/text.h"

#include <algorithm>

namespace xbr::host {

namespace {

Ref<IPublisher> createPublisher() {
    const ClassDescription* description = XBRGetPlugInManager()->classAt(toText("Publisher"), 0, nullptr);
    void* created = nullptr;
    if (description) {
        XBRGetPlugInManager()->createInstance(description->uid, IPublisher::kUid, &created);
    }
    return Ref<IPublisher>::adopt(static_cast<IPublisher*>(created));
}

bool hasState(const std::vector<TrackReport>& tracks, TrackState state) {
    return std::any_of(tracks.begin(), tracks.end(),
                       [state](const TrackReport& track) { return track.state == state; });
}

/// What came of an upload, from the states of its tracks alone.
PublishResult resultOf(const std::vector<TrackReport>& tracks) {
    const bool isAll = std::all_of(tracks.begin(), tracks.end(),
                                   [](const TrackReport& track) { return track.state == TrackState::kDone; });
    if (isAll) {
        return PublishResult::kDone;
    }
    const bool isRefused = hasState(tracks, TrackState::kMissingInformation) &&
                           !hasState(tracks, TrackState::kDone) && !hasState(tracks, TrackState::kFailed);
    return isRefused ? PublishResult::kInformationMissing : PublishResult::kNotAllDone;
}

} // namespace

PublishSession::PublishSession(GadgetPanel& panel, const ConfigurationReport& report,
                               const Activity& activity, PublishListener& listener)
    : m_panel(&panel),
      m_report(&report),
      m_activity(&activity),
      m_listener(&listener),
      m_signIn(panel, report),
      m_settling([this] { return isIdle(); }, [this] { rested(); }) {
    m_start.setSingleShot(true);
    QObject::connect(&m_start, &QTimer::timeout, &m_start, [this] { publish(); });
}

void PublishSession::start(std::vector<std::string> files, ReleaseMode mode) {
    m_files = std::move(files);
    m_mode = mode;
    m_start.start(0);
}

void PublishSession::cancel() {
    m_isCancelled = true;
    if (m_calls == 0) {
        finish(PublishResult::kCancelled);
    }
}

bool PublishSession::isAccepted(IPublisher& publisher, const std::string& file) {
    const auto offered = fileTypeOf(file);
    if (!offered) {
        return false;
    }
    IFileType* type = Ref<IFileType>(offered).detach();
    const Result result = publisher.acceptFileType(&type);
    const auto answered = Ref<IFileType>::adopt(type);
    return result == kOk;
}

bool PublishSession::collect(PublishedItems& items) {
    const auto publisher = createPublisher();
    if (!publisher || !m_panel->tracks()) {
        finish(PublishResult::kNoPublisher, "the module has no publish entry, or no list of tracks");
        return false;
    }
    for (const std::string& file : m_files) {
        std::string error;
        if (!items.add(file, error)) {
            finish(PublishResult::kFileProblem, error);
            return false;
        }
        if (!isAccepted(*publisher, file)) {
            finish(PublishResult::kFileProblem,
                   "'" + file + "' is of a kind that cannot be published (wav, flac or mp3 can)");
            return false;
        }
        // Several files make the module think of an album first, where all take the first one's genre; what
        // has none of its own would keep that one as a single.
        if (m_mode == ReleaseMode::kSingles && m_files.size() > 1 && !items.hasLastGenre()) {
            finish(PublishResult::kInformationMissing, "'" + file + "' has no genre in its tags");
            return false;
        }
    }
    const bool isTaken = publisher->publish(&items) == kOk &&
                         m_panel->tracks()->countRows() == static_cast<std::int32_t>(m_files.size());
    if (!isTaken) {
        finish(PublishResult::kNoPublisher, "the module does not take the files");
    }
    return isTaken;
}

void PublishSession::publish() {
    if (m_isFinished) {
        return;
    }
    const auto items = make<PublishedItems>();
    if (!collect(*items)) {
        return;
    }
    // Several files make the module think of an album.
    m_panel->set("TrackList/albumUpload", m_mode == ReleaseMode::kAlbum ? 1 : 0);
    m_follower = std::make_unique<TrackFollower>(
        m_panel->tracks(), [this] { m_settling.touch(); },
        [this](const TrackReport& track) { m_listener->trackChanged(track); });
    m_listener->tracksKnown(m_follower->reports());
    signIn();
}

void PublishSession::signIn() {
    ++m_calls;
    m_signIn.start([this](SignInResult result, const std::string& detail) { signedIn(result, detail); });
    --m_calls;
    if (m_isCancelled) {
        finish(PublishResult::kCancelled);
    }
}

void PublishSession::signedIn(SignInResult result, const std::string& detail) {
    if (m_isFinished) {
        return;
    }
    switch (result) {
    case SignInResult::kSignedIn:
        upload();
        break;
    case SignInResult::kNotConfigured:
        finish(PublishResult::kNotConfigured);
        break;
    case SignInResult::kUnreachable:
        finish(PublishResult::kUnreachable, detail);
        break;
    case SignInResult::kNotSignedIn:
        finish(PublishResult::kNotSignedIn);
        break;
    }
}

void PublishSession::upload() {
    if (!m_panel->isEnabled("upload")) {
        finish(PublishResult::kInformationMissing);
        return;
    }
    m_settling.start();
    ++m_calls;
    m_panel->set("upload", 1);
    --m_calls;
    if (m_isCancelled) {
        finish(PublishResult::kCancelled);
    }
}

bool PublishSession::isIdle() const {
    return m_calls == 0 && m_activity->openIndicators == 0 && !m_panel->isClient("isBusy") &&
           !m_follower->isUploading();
}

void PublishSession::rested() {
    if (m_isFinished) {
        return;
    }
    const PublishResult result = resultOf(m_follower->reports());
    if (!hasState(m_follower->reports(), TrackState::kFailed)) {
        finish(result);
        return;
    }
    m_reachability.check(m_report->serverUrl, [this, result](const std::string& problem) {
        finish(problem.empty() ? result : PublishResult::kUnreachable, problem);
    });
}

void PublishSession::finish(PublishResult result, const std::string& detail) {
    if (m_isFinished) {
        return;
    }
    m_isFinished = true;
    PublishOutcome outcome{result, detail, {}, {}};
    if (m_follower) {
        outcome.tracks = m_follower->reports();
    }
    if (result == PublishResult::kInformationMissing || result == PublishResult::kNotAllDone) {
        outcome.incomplete = findIncompleteTracks(*m_panel);
        std::erase_if(outcome.incomplete, [&](const IncompleteTrack& track) {
            return outcome.tracks[static_cast<std::size_t>(track.index)].state == TrackState::kDone;
        });
    }
    m_listener->finished(outcome);
}

} // namespace xbr::host
