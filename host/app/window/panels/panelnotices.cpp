#include "host/app/window/panels/panelnotices.h"

#include "framework/abi/system.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "framework/support/parts/path.h"
#include "host/app/publishing/upload/progresswords.h"
#include "host/app/publishing/verdict/words.h"
#include "host/app/window/dialogs/question.h"
#include "host/base/fileurl.h"

#include <QDateTime>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace xbr::host {

PanelNotices::PanelNotices(GadgetPanel& panel, DialogPlace& place,
                           std::function<void(const QString&)> tellInDialog, QObject* parent)
    : QObject(parent),
      m_panel(&panel),
      m_place(&place),
      m_settings(&place.session.settings()),
      m_tellInDialog(std::move(tellInDialog)),
      m_publishing(place.session.activity(), place.session.settings(), panel, *this),
      m_memory(panel, m_publishing, this),
      m_state(panel.clientState()),
      m_client([this](ISubject*, const IMessage& message) {
          if (isNamed(message, "propertyChanged")) {
              clientChanged();
          }
      }) {
    m_client.listen(findObject<ISubject>(panel.controller(), "Client"));
    m_later.setSingleShot(true);
    m_later.setInterval(0);
    m_later.callOnTimeout([this] {
        m_memory.look();
        emit touched();
    });
}

void PanelNotices::tell(NoticeKind kind, const QString& text) {
    emit noticed({kind, text, {}, {}});
}

void PanelNotices::callbackArrived() {
    if (m_panel->clientState() == ClientState::kAwaitingBrowser) {
        m_tellInDialog(
            Words::tr("The browser came back without a permission. Allow the access there, or cancel here."));
    }
}

void PanelNotices::clientChanged() {
    const ClientState state = m_panel->clientState();
    if (state == m_state) {
        return;
    }
    const bool wasConnected = m_state == ClientState::kConnected;
    m_state = state;
    m_later.start();
    if (state != ClientState::kIdle) {
        m_publishing.signInBegan();
        tellState(state);
    } else if (wasConnected) {
        m_publishing.signOutBegan();
    }
}

void PanelNotices::tellState(ClientState state) {
    const bool isHopeless = m_settings->wasAsked && !m_settings->isComplete();
    if (state == ClientState::kAwaitingBrowser && !isHopeless) {
        m_tellInDialog({});
        tell(NoticeKind::kBusy, Words::tr("Waiting for your permission in the browser."));
    } else if (state == ClientState::kRequestingToken) {
        tell(NoticeKind::kBusy, Words::tr("Signing in…"));
    }
}

void PanelNotices::preparing(const PreparationProgress& progress) {
    if (!std::exchange(m_isUploading, true)) {
        m_since.start();
        emit began();
    }
    tell(NoticeKind::kBusy, QString::fromStdString(wordsOf(progress)));
}

void PanelNotices::sending(const UploadProgress& progress) {
    emit progressed(progress);
}

void PanelNotices::restoreSignIn() {
    m_isRestoring = true;
    m_publishing.restore();
}

void PanelNotices::ended(const Verdict& verdict) {
    const bool isRestoring = std::exchange(m_isRestoring, false);
    if (isRestoring && (verdict.code == ExitCode::kNotSignedIn || verdict.cause == Cause::kNotSetUp)) {
        return; // nobody has asked yet
    }
    const bool wasUploading = std::exchange(m_isUploading, false);
    Notice notice{verdict.kind, QString::fromStdString(verdict.sentence), stepsFor(verdict), {}};
    if (verdict.cause == Cause::kPartly || verdict.cause == Cause::kStopped) {
        for (const SongVerdict& song : verdict.songs) {
            if (song.cause != Cause::kPublished) {
                notice.lines.append(QString::fromStdString(song.sentence));
            }
        }
        if (verdict.cause == Cause::kPartly && notice.lines.size() == 1) {
            notice.lines.clear(); // the notice says it
        }
    }
    emit noticed(notice);
    if (wasUploading) {
        emit uploadEnded(notice, m_since.elapsed() / 1000);
    }
    m_later.start();
}

QString PanelNotices::wordsOfLoss() {
    const auto& tracks = m_publishing.tracks();
    const auto done = std::count_if(tracks.begin(), tracks.end(), [](const TrackReport& track) {
        return track.state == TrackState::kDone;
    });
    const auto sent = std::find_if(tracks.begin(), tracks.end(),
                                   [](const TrackReport& track) { return track.isUploading; });
    const QString rest =
        tr("%1 of %n song(s) are published; the rest would not be.", nullptr, static_cast<int>(tracks.size()))
            .arg(done);
    return sent == tracks.end()
               ? rest
               : tr("“%1” is being sent.").arg(QString::fromStdString(labelOf(*sent))) + " " + rest;
}

QString PanelNotices::wordsOfPublication(const std::string& fingerprint) const {
    const auto known = m_publishing.findPublishedFingerprint(fingerprint);
    if (!known) {
        return {};
    }
    return known->account.empty() ? tr("Published %1").arg(QString::fromStdString(wordsOfDate(known->time)))
                                  : tr("Published %1 as %2")
                                        .arg(QString::fromStdString(wordsOfDate(known->time)),
                                             QString::fromStdString(known->account));
}

void PanelNotices::tryAgain() {
    if (uploadComes()) {
        m_publishing.tryAgain();
    }
}

bool PanelNotices::uploadComes() {
    m_publishing.uploadComes();
    return askAboutMissing() && askAboutPublished();
}

/// Before bytes go that the service will not take.
bool PanelNotices::askAboutMissing() {
    const Incomplete incomplete = incompleteOf(m_publishing.tracks(), m_panel->isAlbum());
    if (incomplete.count == 0) {
        return true;
    }
    const Question question{tr("Send without these details?"),
                            tr("“%1”: %2. The service will probably refuse it. Nothing is sent yet.")
                                .arg(QString::fromStdString(labelOf(incomplete.first)),
                                     QString::fromStdString(wordsOf(incomplete.missing))),
                            {tr("&Show"), tr("Send &Anyway")}};
    const QPointer<PanelNotices> self(this);
    const bool isWanted = ask(*m_place, question) == 1;
    if (self && !isWanted) {
        emit showAsked(incomplete.first.index, parameterOf(incomplete.missing.front()));
    }
    return self && isWanted;
}

/// Before songs are published twice.
// NOLINTNEXTLINE(readability-function-cognitive-complexity): one question, with what it needs
bool PanelNotices::askAboutPublished() {
    std::vector<std::int32_t> rows;
    std::int64_t time = 0;
    std::string label;
    const auto tracks = m_publishing.tracks(); // the list may change while the question is open
    for (const TrackReport& track : tracks) {
        const std::string path = localPath(track.file).value_or("");
        const bool isWaiting = track.state == TrackState::kNone && !m_wantedAgain.contains(path);
        const auto known = isWaiting ? m_publishing.findPublished(path) : std::nullopt;
        if (known) {
            label = rows.empty() ? labelOf(track) : label;
            time = rows.empty() ? known->time : time;
            rows.push_back(track.index);
        }
    }
    if (rows.empty()) {
        return true;
    }
    Question question{tr("Publish again?"),
                      QString::fromStdString(wordsOfPublished(label, time)),
                      {tr("&Cancel"), tr("Publish &Again")}};
    const bool isForSeveral = tracks.size() > 1;
    if (isForSeveral) {
        question.answers = {tr("&Leave them out"), tr("Publish &Again"), tr("&Cancel")};
        question.escape = 2;
    }
    if (rows.size() > 1) {
        question.text = tr("%1 of %n song(s) were published from this computer before.", nullptr,
                           static_cast<int>(tracks.size()))
                            .arg(rows.size());
    }
    const QPointer<PanelNotices> self(this);
    const std::size_t answer = ask(*m_place, question);
    if (!self || answer == question.escape) {
        return false;
    }
    if (answer == 1) {
        for (const std::int32_t row : rows) {
            m_wantedAgain.insert(localPath(tracks[static_cast<std::size_t>(row)].file).value_or(""));
        }
        return true;
    }
    m_memory.remove(rows);
    return rows.size() < tracks.size() && m_panel->isEnabled("upload");
}

NoticeStep PanelNotices::stepTo(int row, const QString& parameter) {
    return {"show", tr("&Show"), [this, row, parameter] { emit showAsked(row, parameter); }};
}

/// What can be done about it, the most useful last.
std::vector<NoticeStep> PanelNotices::stepsFor(const Verdict& verdict) {
    const auto first = std::find_if(verdict.songs.begin(), verdict.songs.end(),
                                    [](const SongVerdict& song) { return song.cause != Cause::kPublished; });
    const int row = static_cast<int>(first - verdict.songs.begin());
    const Cause cause = verdict.cause == Cause::kPartly ? first->cause : verdict.cause;
    const NoticeStep again{"tryAgain", tr("&Try again"), [this, isUpload = !verdict.songs.empty()] {
                               isUpload ? tryAgain() : m_publishing.signIn(Expired::kRenew);
                           }};
    const NoticeStep page{"accountPage", tr("A&ccount page"),
                          [this] { XBRGetSystemShell()->openUrl(toText(m_panel->text("userURL"))); }};
    const NoticeStep leaveOut{"leaveOut", tr("&Leave out"), [this, row] { m_memory.remove({row}); }};
    const NoticeStep signIn{"signIn", tr("Sign &in"), [this] { m_publishing.signIn(Expired::kRenew); }};
    const QString field =
        first != verdict.songs.end() && !first->missing.empty() ? parameterOf(first->missing.front()) : "";
    switch (cause) {
    case Cause::kPublished:
        return {page};
    case Cause::kStoppedUnsure:
    case Cause::kLostUnsure:
        return {page, again};
    case Cause::kRefused:
    case Cause::kRefusedMissing:
    case Cause::kNotPrepared:
        return first == verdict.songs.end() ? std::vector{again} : std::vector{stepTo(row, field), again};
    case Cause::kGone:
        return {stepTo(row, {}), leaveOut, again};
    case Cause::kTooLarge:
    case Cause::kMissingDetails:
        return first == verdict.songs.end() ? std::vector<NoticeStep>() : std::vector{stepTo(row, field)};
    case Cause::kExpired:
    case Cause::kNotSignedIn:
        return {signIn};
    case Cause::kChanged:
    case Cause::kDiskFull:
    case Cause::kNoFolder:
    case Cause::kStoppedBefore:
    case Cause::kStopped:
    case Cause::kServiceFault:
    case Cause::kTooMany:
    case Cause::kLost:
    case Cause::kUntrusted:
    case Cause::kUnreachable:
        return {again};
    default:
        return {};
    }
}

} // namespace xbr::host
