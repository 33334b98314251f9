#include "host/app/window/panels/servicewatch.h"

#include "framework/support/objects/message.h"
#include "framework/support/objects/value.h"
#include "framework/support/parts/path.h"
#include "host/app/publishing/preparationproblem.h"
#include "host/app/window/panels/wording.h"
#include "host/net/hostnet.h"

#include <algorithm>

namespace xbr::host {

namespace {

/// Where a panel's client stands (its property "clientState").
enum ClientState : std::int64_t { kNotConnected, kAwaitingCode, kRequestingToken, kConnected, kFailed };

std::int64_t clientStateOf(const GadgetPanel& panel) {
    const auto client = findObject<IPropertySource>(panel.controller(), "Client");
    Value state{};
    return client && client->getProperty(toText("clientState"), &state) == kOk ? integerOf(state) : 0;
}

std::size_t countOf(const std::vector<TrackReport>& tracks, TrackState state) {
    return static_cast<std::size_t>(
        std::count_if(tracks.begin(), tracks.end(), [state](auto& track) { return track.state == state; }));
}

} // namespace

ServiceWatch::ServiceWatch(GadgetPanel& panel, HostSession& session,
                           std::function<void(const QString&)> tellInDialog, QObject* parent)
    : QObject(parent),
      m_panel(&panel),
      m_session(&session),
      m_tellInDialog(std::move(tellInDialog)),
      m_client([this](ISubject*, const IMessage& message) {
          if (isNamed(message, "propertyChanged")) {
              clientChanged();
          }
      }),
      m_settling([this] { return isIdle(); }, [this] { rested(); }),
      m_state(clientStateOf(panel)),
      m_refusals(countRefusedCredentials()),
      m_watching(session.activity().watch(*this)) {
    m_client.listen(findObject<ISubject>(panel.controller(), "Client"));
}

void ServiceWatch::tell(NoticeKind kind, const QString& text) {
    emit noticed({kind, text});
}

void ServiceWatch::callbackArrived() {
    if (clientStateOf(*m_panel) == kAwaitingCode) {
        m_tellInDialog(
            tr("The browser came back without a permission. Allow the access there, or cancel here."));
    }
}

bool ServiceWatch::isUploading() const {
    return m_session->activity().isWorking() || (m_follower && m_follower->isUploading());
}

void ServiceWatch::clientChanged() {
    const std::int64_t state = clientStateOf(*m_panel);
    if (state != m_state) {
        const bool wasConnected = m_state == kConnected;
        m_state = state;
        if (wasConnected && state == kNotConnected) {
            tell(NoticeKind::kInfo, tr("Disconnected."));
        }
        tellState(state);
    }
    m_settling.start();
}

void ServiceWatch::tellState(std::int64_t state) {
    const ConfigurationReport& report = m_session->settings();
    switch (state) {
    case kAwaitingCode:
        m_hasSignInFailed = false;
        m_tellInDialog({});
        if (report.wasAsked && !report.isComplete()) {
            tell(NoticeKind::kError, describeConfiguration(report));
        } else {
            tell(NoticeKind::kBusy, tr("Continue in your web browser: allow the access there."));
        }
        break;
    case kRequestingToken:
        tell(NoticeKind::kBusy, tr("Signing in…"));
        break;
    case kConnected:
        m_hasSignInFailed = false;
        tell(NoticeKind::kDone, tr("Connected."));
        break;
    case kFailed:
        m_hasSignInFailed = true;
        break;
    default:
        break;
    }
}

void ServiceWatch::ended(Activity::Kind kind, bool isCancelled) {
    if (kind != Activity::Kind::kPreparing) {
        return;
    }
    m_wasCancelled = isCancelled;
    tell(NoticeKind::kBusy, tr("Uploading…"));
    if (!m_follower) {
        follow();
    }
    m_settling.start();
}

void ServiceWatch::follow() {
    const auto tracks = m_panel->tracks();
    if (tracks) {
        m_wasSent = false;
        m_follower = std::make_unique<TrackFollower>(
            tracks, [this] { m_settling.touch(); },
            [this](const TrackReport& track) { trackChanged(track); });
    }
}

void ServiceWatch::trackChanged(const TrackReport& track) {
    if (track.isUploading) {
        m_wasSent = true;
        tell(NoticeKind::kBusy, tr("Uploading “%1”: %2 %")
                                    .arg(QString::fromStdString(labelOf(track)))
                                    .arg(static_cast<int>(track.progress * 100.0)));
    }
}

bool ServiceWatch::isIdle() const {
    return !m_session->activity().isWorking() && !m_panel->isClient("isBusy") &&
           !(m_follower && m_follower->isUploading());
}

void ServiceWatch::rested() {
    if (m_follower) {
        const std::vector<TrackReport> tracks = m_follower->reports();
        m_follower.reset();
        judgeUpload(tracks, m_wasSent);
    } else if (!tellExpired()) {
        judgeSignIn();
    }
}

bool ServiceWatch::tellExpired() {
    const std::uint64_t refusals = countRefusedCredentials();
    const bool isNews = refusals != m_refusals;
    m_refusals = refusals;
    if (isNews) {
        tell(NoticeKind::kWarning,
             tr("Your sign-in has expired or was withdrawn. Disconnect, then connect again."));
    }
    return isNews;
}

void ServiceWatch::judgeSignIn() {
    if (m_state == kConnected) {
        const QString name = QString::fromStdString(m_panel->text("userName"));
        if (!name.isEmpty()) {
            tell(NoticeKind::kDone, tr("Connected as %1.").arg(name));
        }
    } else if (m_hasSignInFailed) {
        m_hasSignInFailed = false;
        m_reachability.check(m_session->settings().serverUrl, [this](const std::string& problem) {
            tell(NoticeKind::kError, problem.empty()
                                         ? tr("The service did not accept the sign-in. Try to connect again.")
                                         : sentence(problem));
        });
    } else if (m_state == kAwaitingCode && m_session->activity().isOpen(Activity::Kind::kDialog)) {
        m_settling.start(); // until somebody closes it
    } else if (m_state == kAwaitingCode && m_session->settings().isComplete()) {
        tell(NoticeKind::kInfo, tr("Not connected yet: the browser has not come back with a permission."));
    }
}

void ServiceWatch::judgeUpload(const std::vector<TrackReport>& tracks, bool wasSent) {
    const std::size_t done = countOf(tracks, TrackState::kDone);
    if (m_wasCancelled) {
        m_wasCancelled = false;
        tell(NoticeKind::kInfo, tr("The upload was cancelled before anything was sent."));
    } else if (!tracks.empty() && done == tracks.size()) {
        tell(NoticeKind::kDone, tr("Published: %n song(s).", nullptr, static_cast<int>(done)));
    } else if (tellExpired()) {
        return;
    } else if (countOf(tracks, TrackState::kMissingInformation) > 0) {
        tell(NoticeKind::kWarning,
             tr("The service needs more information: fill in the marked fields, then upload again."));
    } else {
        judgeFailure(tracks, wasSent);
    }
}

void ServiceWatch::judgeFailure(const std::vector<TrackReport>& tracks, bool wasSent) {
    const std::string problem = findPreparationProblem(tracks);
    if (!wasSent || !problem.empty()) {
        tell(NoticeKind::kError, problem.empty() ? tr("Nothing was sent: the upload could not be prepared.")
                                                 : tr("Nothing was sent: %1").arg(sentence(problem)));
        return;
    }
    const int open = static_cast<int>(tracks.size() - countOf(tracks, TrackState::kDone));
    m_reachability.check(m_session->settings().serverUrl, [this, open](const std::string& unreachable) {
        tell(NoticeKind::kError,
             unreachable.empty() ? tr("The service did not take %n song(s). Try again later.", nullptr, open)
                                 : sentence(unreachable));
    });
}

} // namespace xbr::host
