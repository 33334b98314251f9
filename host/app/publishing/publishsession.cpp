#include "host/app/publishing/publishsession.h"

#include "host/app/publishing/preparationproblem.h"
#include "host/net/hostnet.h"
#include "host/system/hostsystem.h"

#include <algorithm>

namespace xbr::host {

namespace {

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
      m_intake(panel),
      m_signIn(panel, report),
      m_settling([this] { return isIdle(); }, [this] { rested(); }) {
    m_start.setSingleShot(true);
    QObject::connect(&m_start, &QTimer::timeout, &m_start, [this] { publish(); });
}

void PublishSession::start(ReleaseWish plan) {
    m_plan = std::move(plan);
    m_start.start(0);
}

void PublishSession::cancel() {
    m_isCancelled = true;
    if (m_calls == 0) {
        finish(PublishResult::kCancelled);
    }
}

bool PublishSession::takeSongs() {
    ++m_calls;
    const ReleaseIntake::Outcome outcome = m_intake.take(m_plan);
    --m_calls;
    if (m_isCancelled) {
        finish(PublishResult::kCancelled);
    } else if (outcome.result != PublishResult::kDone) {
        finish(outcome.result, outcome.detail);
    }
    return !m_isFinished;
}

void PublishSession::publish() {
    if (m_isFinished || !takeSongs()) {
        return;
    }
    follow();
    signIn();
}

void PublishSession::follow() {
    m_follower = std::make_unique<TrackFollower>(
        m_panel->tracks(), [this] { m_settling.touch(); },
        [this](const TrackReport& track) { m_listener->trackChanged(named(track)); });
    std::vector<TrackReport> known;
    for (const TrackReport& report : m_follower->reports()) {
        known.push_back(named(report));
    }
    m_listener->tracksKnown(known);
}

/// The user knows a song by the file that it came from, not by what was rendered from it.
TrackReport PublishSession::named(TrackReport report) const {
    report.file = m_intake.sourceOf(report.file);
    return report;
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
    case SignInResult::kExpired:
        finish(PublishResult::kSignInExpired, detail);
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
    m_refusals = countRefusedCredentials();
    takeFileProblem(); // of earlier work
    m_settling.start();
    ++m_calls;
    m_panel->set("upload", 1);
    --m_calls;
    if (m_isCancelled) {
        finish(PublishResult::kCancelled);
    }
}

bool PublishSession::isIdle() const {
    return m_calls == 0 && !m_activity->isWorking() && !m_panel->isClient("isBusy") &&
           !m_follower->isUploading();
}

void PublishSession::rested() {
    if (m_isFinished) {
        return;
    }
    const PublishResult result = resultOf(m_follower->reports());
    if (result == PublishResult::kDone) {
        // A song that could not be copied is not in the archive, whatever the service makes of that.
        const std::string problem = takeFileProblem();
        finish(problem.empty() ? result : PublishResult::kNotAllDone, problem);
    } else if (result == PublishResult::kInformationMissing) {
        finish(result, takeFileProblem());
    } else if (countRefusedCredentials() != m_refusals) {
        finish(PublishResult::kSignInExpired, kExpiredAdvice);
    } else {
        tellFailure(result);
    }
}

void PublishSession::tellFailure(PublishResult result) {
    const bool isPrepared = !hasState(m_follower->reports(), TrackState::kNone);
    const std::string problem =
        isPrepared ? takeFileProblem() : findPreparationProblem(m_follower->reports());
    if (!problem.empty() || !hasState(m_follower->reports(), TrackState::kFailed)) {
        finish(result, problem);
        return;
    }
    m_reachability.check(m_report->serverUrl, [this, result](const std::string& unreachable) {
        finish(unreachable.empty() ? result : PublishResult::kUnreachable, unreachable);
    });
}

void PublishSession::finish(PublishResult result, const std::string& detail) {
    if (m_isFinished) {
        return;
    }
    m_isFinished = true;
    PublishOutcome outcome{result, detail, {}, {}};
    if (m_follower) {
        for (const TrackReport& report : m_follower->reports()) {
            outcome.tracks.push_back(named(report));
        }
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
