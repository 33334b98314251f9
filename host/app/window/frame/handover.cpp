#include "host/app/window/frame/handover.h"

#include "host/app/publishing/verdict/words.h"
#include "host/app/window/dialogs/question.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>
#include <optional>

namespace xbr::host {

namespace {

struct HandOverTexts {
    Q_DECLARE_TR_FUNCTIONS(xbr::host::HandOver)
};

QString words(const std::string& sentence) {
    return QString::fromStdString(sentence);
}

/// Asked when the panel holds what would be lost.
bool mayReplace(DialogPlace& place, PanelNotices& panel) {
    const auto& tracks = panel.publishing().tracks();
    const auto edited = static_cast<int>(panel.memory().countEdited());
    const bool hasResults = std::any_of(tracks.begin(), tracks.end(), [](const TrackReport& track) {
        return track.state != TrackState::kNone;
    });
    if (edited == 0 && !hasResults) {
        return true;
    }
    const QString loss =
        edited > 0
            ? HandOverTexts::tr("It holds edits of %n song(s) that have not been sent.", nullptr, edited)
            : HandOverTexts::tr("It holds the results of the last upload.");
    return ask(place, {HandOverTexts::tr("Replace the songs in the panel?"),
                       loss,
                       {HandOverTexts::tr("&Keep"), HandOverTexts::tr("&Replace")}}) == 1;
}

/// Asked when some of the songs cannot be published, and others can.
bool mayLeaveOut(DialogPlace& place, const Plan& plan) {
    QStringList sentences;
    for (const Finding& finding : plan.findings) {
        if (finding.kind == Finding::Kind::kUnreadable) {
            sentences.append(words(wordsOf(finding)));
        }
    }
    if (sentences.isEmpty() || plan.releases.empty()) {
        return false;
    }
    sentences.append(HandOverTexts::tr("The other songs can be handed over without them."));
    return ask(place, {HandOverTexts::tr("Leave out songs?"),
                       sentences.join('\n'),
                       {HandOverTexts::tr("&Cancel"), HandOverTexts::tr("&Leave out")}}) == 1;
}

/// The songs are in the panel: how many, or what is open there.
Notice noticeOf(const Verdict& verdict, PanelNotices& panel) {
    const auto& tracks = panel.publishing().tracks();
    const auto count = static_cast<int>(tracks.size());
    QStringList warnings;
    for (const std::string& warning : verdict.warnings) {
        warnings.append(words(warning));
    }
    if (verdict.isGood()) {
        const QString text =
            HandOverTexts::tr("%n song(s) handed over to the panel; nothing is sent yet. Check the "
                              "details there, then upload.",
                              nullptr, count);
        return warnings.isEmpty()
                   ? Notice{NoticeKind::kInfo, text, {}, {}}
                   : Notice{NoticeKind::kWarning, text + " " + warnings.front(), {}, warnings.mid(1)};
    }
    const Incomplete incomplete = incompleteOf(tracks, false);
    if (incomplete.count == 0) {
        return {NoticeKind::kWarning, words(verdict.sentence), {}, warnings};
    }
    const NoticeStep show{
        "show", HandOverTexts::tr("&Show"),
        [self = QPointer(&panel), row = incomplete.first.index, missing = incomplete.missing] {
            if (self) {
                emit self->showAsked(row, parameterOf(missing.front()));
            }
        }};
    if (verdict.cause != Cause::kMissingDetails) {
        return {NoticeKind::kWarning, words(verdict.sentence), {show}, warnings};
    }
    const QString text =
        HandOverTexts::tr("%1 of %n song(s) lack details that the service needs. “%2”: %3.", nullptr, count)
            .arg(QString::number(incomplete.count), words(labelOf(incomplete.first)),
                 words(wordsOf(incomplete.missing)));
    return {NoticeKind::kWarning, text, {show}, {}};
}

Plan makePlan(DialogPlace& place, const Publishing& publishing, const PublishEntry& entry,
              const std::vector<SongFile>& songs) {
    ReleaseWish wish;
    wish.mode = ReleaseMode::kPanel;
    wish.songs.resize(songs.size());
    Plan plan = publishing.plan(entry, wish, songs);
    if (mayLeaveOut(place, plan)) {
        wish.skipsUnreadable = true;
        plan = publishing.plan(entry, wish, songs);
    }
    return plan;
}

} // namespace

Notice handOverSongs(DialogPlace& place, PanelNotices& panel, const PublishEntry& entry,
                     std::vector<SongFile> songs) {
    const QPointer<PanelNotices> self(&panel);
    Publishing& publishing = panel.publishing();
    std::optional<Plan> plan = makePlan(place, publishing, entry, songs);
    songs = {}; // a long list is held often enough: the plan knows what is needed
    if (!self || (plan->canBeHandedOver() && !mayReplace(place, panel)) || !self) {
        return {};
    }
    panel.memory().pause();
    const auto failed = publishing.handOver(entry, *plan);
    if (!self) {
        return {};
    }
    const Verdict verdict = failed ? *failed : judge(*plan);
    plan.reset(); // before the panel is read
    panel.memory().handedOver();
    return failed ? Notice{verdict.kind, words(verdict.sentence), {}, {}} : noticeOf(verdict, panel);
}

} // namespace xbr::host
