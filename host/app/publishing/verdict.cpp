#include "host/app/publishing/verdict.h"

#include "host/app/publishing/upload/progresswords.h"
#include "host/app/publishing/words.h"

#include <algorithm>

namespace xbr::host {

namespace {

struct CauseRow {
    const char* name;
    ExitCode code;
    NoticeKind kind;
    const char* next; ///< on the command line; null for nothing
};

constexpr const char* kSameAgain = QT_TRANSLATE_NOOP("xbr::host::Words", "Run the same command again.");
constexpr const char* kTheRest = QT_TRANSLATE_NOOP(
    "xbr::host::Words", "Run the same command with the songs that are not published to send the rest.");
constexpr const char* kUnlock =
    QT_TRANSLATE_NOOP("xbr::host::Words", "Unlock it, then run the same command again.");
constexpr const char* kLater = QT_TRANSLATE_NOOP("xbr::host::Words", "Try again later.");

/// In the order of the causes.
constexpr CauseRow kCauses[] = {
    {"published", ExitCode::kDone, NoticeKind::kDone, nullptr},
    {"signed-in", ExitCode::kDone, NoticeKind::kDone, nullptr},
    {"partly", ExitCode::kNotAllDone, NoticeKind::kWarning, kTheRest},
    {"missing-details", ExitCode::kInformationMissing, NoticeKind::kWarning, nullptr},
    {"unknown-genre", ExitCode::kInformationMissing, NoticeKind::kWarning,
     QT_TRANSLATE_NOOP("xbr::host::Words", "Choose one with --genre.")},
    {"refused-missing", ExitCode::kInformationMissing, NoticeKind::kWarning, nullptr},
    {"same-file", ExitCode::kUsage, NoticeKind::kError,
     QT_TRANSLATE_NOOP("xbr::host::Words", "Name it once.")},
    {"same-name", ExitCode::kFileProblem, NoticeKind::kError,
     QT_TRANSLATE_NOOP("xbr::host::Words", "Rename one of them.")},
    {"unreadable", ExitCode::kFileProblem, NoticeKind::kError,
     QT_TRANSLATE_NOOP("xbr::host::Words", "--skip-unreadable leaves it out.")},
    {"gone", ExitCode::kNotAllDone, NoticeKind::kError,
     QT_TRANSLATE_NOOP("xbr::host::Words", "Put it back, then run the same command again.")},
    {"changed", ExitCode::kNotAllDone, NoticeKind::kError, kSameAgain},
    {"disk-full", ExitCode::kNotAllDone, NoticeKind::kError,
     QT_TRANSLATE_NOOP("xbr::host::Words", "Make room, or set TMPDIR to another folder.")},
    {"no-folder", ExitCode::kNotAllDone, NoticeKind::kError,
     QT_TRANSLATE_NOOP("xbr::host::Words", "Set TMPDIR to another folder.")},
    {"not-prepared", ExitCode::kNotAllDone, NoticeKind::kError, nullptr},
    {"two-numbers", ExitCode::kDone, NoticeKind::kWarning,
     QT_TRANSLATE_NOOP("xbr::host::Words", "--track-number sets it.")},
    {"published-before", ExitCode::kPublishedBefore, NoticeKind::kWarning,
     QT_TRANSLATE_NOOP("xbr::host::Words", "--again sends them again.")},
    {"nothing-waits", ExitCode::kNotAllDone, NoticeKind::kInfo, nullptr},
    {"stopped-before", ExitCode::kInterrupted, NoticeKind::kInfo, nullptr},
    {"stopped", ExitCode::kInterrupted, NoticeKind::kInfo, kTheRest},
    {"stopped-unsure", ExitCode::kInterrupted, NoticeKind::kWarning,
     QT_TRANSLATE_NOOP("xbr::host::Words", "Look at your account page before you send it again.")},
    {"lost-unsure", ExitCode::kNotAllDone, NoticeKind::kWarning,
     QT_TRANSLATE_NOOP("xbr::host::Words", "Look at your account page before you send it again.")},
    {"refused", ExitCode::kNotAllDone, NoticeKind::kError, nullptr},
    {"too-large", ExitCode::kNotAllDone, NoticeKind::kError, nullptr},
    {"service-fault", ExitCode::kNotAllDone, NoticeKind::kError, kLater},
    {"too-many", ExitCode::kNotAllDone, NoticeKind::kError, kLater},
    {"lost", ExitCode::kNotAllDone, NoticeKind::kError, kSameAgain},
    {"untrusted", ExitCode::kUnreachable, NoticeKind::kError,
     QT_TRANSLATE_NOOP("xbr::host::Words", "Check ServerURL and this computer's clock.")},
    {"unreachable", ExitCode::kUnreachable, NoticeKind::kError, kLater},
    {"expired", ExitCode::kSignInExpired, NoticeKind::kWarning,
     QT_TRANSLATE_NOOP("xbr::host::Words", "xbrhost sign-in renews it.")},
    {"not-signed-in", ExitCode::kNotSignedIn, NoticeKind::kError,
     QT_TRANSLATE_NOOP("xbr::host::Words", "xbrhost sign-in signs in.")},
    {"other-account", ExitCode::kNotSignedIn, NoticeKind::kError,
     QT_TRANSLATE_NOOP("xbr::host::Words", "xbrhost sign-out signs out.")},
    {"signed-out", ExitCode::kDone, NoticeKind::kInfo, nullptr},
    {"keyring-none", ExitCode::kKeyring, NoticeKind::kWarning, nullptr},
    {"keyring-locked", ExitCode::kKeyring, NoticeKind::kWarning, kUnlock},
    {"keyring-silent", ExitCode::kKeyring, NoticeKind::kWarning, kUnlock},
    {"not-set-up", ExitCode::kNotConfigured, NoticeKind::kError, nullptr},
    {"no-module", ExitCode::kModuleProblem, NoticeKind::kError,
     QT_TRANSLATE_NOOP("xbr::host::Words", "--module names one.")},
};

const CauseRow& rowOf(Cause cause) {
    return kCauses[static_cast<std::size_t>(cause)];
}

/// "Add them with --title, --genre."
std::string wordsOfOptions(const std::vector<Detail>& missing) {
    static constexpr const char* kOptions[] = {"--album-title", "--album-artist", "--genre", "--title",
                                               "--artist"};
    std::string options;
    for (const Detail detail : missing) {
        options += (options.empty() ? "" : ", ") + std::string(kOptions[static_cast<std::size_t>(detail)]);
    }
    if (missing.size() < 2) {
        return missing.empty()
                   ? std::string()
                   : say(QCoreApplication::translate("xbr::host::Words", "Add it with %1."), options);
    }
    return say(QCoreApplication::translate("xbr::host::Words", "Add them with %1."), options);
}

// What became of one track.

/// "“Harbour”" or "the album “Night Drive”" as the sentences below name what was sent.
struct Sent {
    const UploadFacts* facts;
    const TrackFact* track;

    bool isAlbum() const { return facts->isAlbum; }
    const std::string& name() const { return isAlbum() ? facts->albumTitle : track->label; }

    /// A sentence about it: one text for a song, one for an album.
    template <class... More>
    std::string say(const QString& song, const QString& album, const More&... more) const {
        return xbr::host::say(isAlbum() ? album : song, name(), more...);
    }
};

std::string wordsOfRefusal(const Sent& sent) {
    const std::string status = std::to_string(sent.track->status);
    const std::string words = quoted(sent.track->said);
    return words.empty()
               ? sent.say(
                     QCoreApplication::translate("xbr::host::Words",
                                                 "The service refused “%1” (%2) and gave no reason."),
                     QCoreApplication::translate(
                         "xbr::host::Words", "The service refused the album “%1” (%2) and gave no reason."),
                     status)
               : sent.say(
                     QCoreApplication::translate("xbr::host::Words", "The service refused “%1” (%2): %3"),
                     QCoreApplication::translate("xbr::host::Words",
                                                 "The service refused the album “%1” (%2): %3"),
                     status, words);
}

/// What is empty in the song, or in any of the album.
std::vector<Detail> missingIn(const Sent& sent) {
    std::vector<Detail> missing;
    for (const TrackFact& track : sent.facts->tracks) {
        if (&track == sent.track || sent.isAlbum()) {
            missing.insert(missing.end(), track.missing.begin(), track.missing.end());
        }
    }
    std::sort(missing.begin(), missing.end());
    missing.erase(std::unique(missing.begin(), missing.end()), missing.end());
    return missing;
}

std::string wordsOfMissing(const Sent& sent) {
    const std::vector<Detail> missing = missingIn(sent);
    if (!missing.empty()) {
        return sent.say(
            QCoreApplication::translate("xbr::host::Words",
                                        "The service refused “%1” because details are missing: %2."),
            QCoreApplication::translate(
                "xbr::host::Words", "The service refused the album “%1” because details are missing: %2."),
            wordsOf(missing));
    }
    return sent.say(
        QCoreApplication::translate(
            "xbr::host::Words",
            "The service refused “%1” because details are missing, but none is empty here: %2"),
        QCoreApplication::translate(
            "xbr::host::Words",
            "The service refused the album “%1” because details are missing, but none is empty here: %2"),
        quoted(sent.track->said));
}

SongVerdict songVerdict(const TrackFact& track, Cause cause, std::string sentence) {
    return {cause, track.label, track.source, std::move(sentence), track.status, track.sent, track.missing};
}

std::string wordsOfWaiting(const Sent& sent) {
    if (sent.track->wait >= 0) {
        return sent.say(QCoreApplication::translate(
                            "xbr::host::Words",
                            "The service asks to wait %2 before the next upload. “%1” was not taken."),
                        QCoreApplication::translate("xbr::host::Words",
                                                    "The service asks to wait %2 before the next upload. The "
                                                    "album “%1” was not taken."),
                        wordsOfSeconds(sent.track->wait));
    }
    return sent.say(
        QCoreApplication::translate(
            "xbr::host::Words",
            "The service asks to wait a while before the next upload. “%1” was not taken."),
        QCoreApplication::translate(
            "xbr::host::Words",
            "The service asks to wait a while before the next upload. The album “%1” was not taken."));
}

SongVerdict judgeAnswer(const Sent& sent) {
    const TrackFact& track = *sent.track;
    const std::string status = std::to_string(track.status);
    // Tracks of an album that go again with the others are waiting once more.
    const bool isIncomplete = track.state == TrackState::kMissingInformation ||
                              (track.state == TrackState::kNone && track.status < 500);
    if (track.status == 401) {
        return songVerdict(
            track, Cause::kExpired,
            say(QCoreApplication::translate("xbr::host::Words",
                                            "The service does not accept the stored sign-in any more.")));
    }
    if (isIncomplete) {
        return songVerdict(track, Cause::kRefusedMissing, wordsOfMissing(sent));
    }
    if (track.status == 413) {
        return songVerdict(
            track, Cause::kTooLarge,
            sent.say(
                QCoreApplication::translate("xbr::host::Words",
                                            "The service refused “%1” because it is too large (%2)."),
                QCoreApplication::translate(
                    "xbr::host::Words", "The service refused the album “%1” because it is too large (%2)."),
                wordsOfSize(track.total)));
    }
    if (track.status == 429) {
        return songVerdict(track, Cause::kTooMany, wordsOfWaiting(sent));
    }
    if (track.status >= 500) {
        return songVerdict(
            track, Cause::kServiceFault,
            sent.say(QCoreApplication::translate(
                         "xbr::host::Words",
                         "The service has a fault (%2). “%1” was not taken; nothing is wrong with the "
                         "song."),
                     QCoreApplication::translate(
                         "xbr::host::Words",
                         "The service has a fault (%2). The album “%1” was not taken; nothing is wrong "
                         "with it."),
                     status));
    }
    return songVerdict(track, Cause::kRefused, wordsOfRefusal(sent));
}

/// All of it left, and nobody answered.
SongVerdict judgeUnsure(const Sent& sent) {
    if (sent.facts->isCancelled) {
        return songVerdict(
            *sent.track, Cause::kStoppedUnsure,
            sent.say(QCoreApplication::translate("xbr::host::Words",
                                                 "Stopped after all of “%1” was sent, before the service "
                                                 "answered. It may be published."),
                     QCoreApplication::translate("xbr::host::Words",
                                                 "Stopped after all of the album “%1” was sent, before the "
                                                 "service answered. It may be published.")));
    }
    return songVerdict(
        *sent.track, Cause::kLostUnsure,
        sent.say(QCoreApplication::translate(
                     "xbr::host::Words",
                     "The connection broke after all of “%1” was sent, before the service answered. It "
                     "may be published."),
                 QCoreApplication::translate(
                     "xbr::host::Words",
                     "The connection broke after all of the album “%1” was sent, before the service "
                     "answered. It may be published.")));
}

SongVerdict judgeBroken(const Sent& sent) {
    const TrackFact& track = *sent.track;
    if (isAboutServer(track.problem) && track.sent == 0) {
        return songVerdict(track, causeOfServer(track.problem), wordsOfServer(track.problem));
    }
    if (track.total > 0 && track.sent >= track.total) {
        return judgeUnsure(sent);
    }
    const auto [part, whole] = wordsOfSizes(track.sent, track.total);
    if (sent.facts->isCancelled) {
        return songVerdict(
            track, Cause::kStopped,
            sent.say(QCoreApplication::translate("xbr::host::Words",
                                                 "“%1” was stopped at %2 of %3 and did not arrive."),
                     QCoreApplication::translate(
                         "xbr::host::Words", "The album “%1” was stopped at %2 of %3 and did not arrive."),
                     part, whole));
    }
    return songVerdict(
        track, Cause::kLost,
        sent.say(
            QCoreApplication::translate("xbr::host::Words",
                                        "The connection broke after %2 of %3. “%1” did not arrive."),
            QCoreApplication::translate(
                "xbr::host::Words", "The connection broke after %2 of %3. The album “%1” did not arrive."),
            part, whole));
}

SongVerdict judgeFile(const Sent& sent, const Problem& problem) {
    const TrackFact& track = *sent.track;
    const std::string file = fileNameOf(problem.subject);
    switch (problem.fault) {
    case Fault::kMissing:
        return songVerdict(
            track, Cause::kGone,
            sent.say(QCoreApplication::translate("xbr::host::Words",
                                                 "“%2” is no longer there. “%1” was not sent."),
                     QCoreApplication::translate("xbr::host::Words",
                                                 "“%2” is no longer there. The album “%1” is not complete."),
                     file));
    case Fault::kChanged:
        return songVerdict(
            track, Cause::kChanged,
            sent.say(
                QCoreApplication::translate("xbr::host::Words",
                                            "“%2” changed while it was copied. “%1” was not sent."),
                QCoreApplication::translate(
                    "xbr::host::Words", "“%2” changed while it was copied. The album “%1” is not complete."),
                file));
    case Fault::kDiskFull:
        return songVerdict(
            track, Cause::kDiskFull,
            sent.say(QCoreApplication::translate(
                         "xbr::host::Words",
                         "There is not enough room in “%2”: %3 are needed, %4 are free. “%1” was "
                         "not sent."),
                     QCoreApplication::translate(
                         "xbr::host::Words",
                         "There is not enough room in “%2”: %3 are needed, %4 are free. The album “%1” "
                         "was not sent."),
                     sent.facts->folder, wordsOfSize(sent.facts->neededSpace),
                     wordsOfSize(sent.facts->freeSpace)));
    case Fault::kNoTemporaryFolder:
        return songVerdict(track, Cause::kNoFolder,
                           say(QCoreApplication::translate("xbr::host::Words",
                                                           "The folder for copies, “%1”, cannot be written."),
                               sent.facts->folder));
    default:
        return songVerdict(
            track, Cause::kNotPrepared,
            sent.say(QCoreApplication::translate("xbr::host::Words",
                                                 "“%1” could not be prepared: %2. It was not sent."),
                     QCoreApplication::translate(
                         "xbr::host::Words", "The album “%1” could not be prepared: %2. It was not sent."),
                     problem.words));
    }
}

/// What kept a track from being prepared; null when nothing is known. A file that is no song's is all songs'.
const Problem* problemOf(const UploadFacts& facts, const TrackFact& track) {
    const auto found = std::find_if(facts.files.begin(), facts.files.end(), [&](const Problem& problem) {
        const bool isSong = std::any_of(facts.tracks.begin(), facts.tracks.end(), [&](const TrackFact& each) {
            return each.source == problem.subject;
        });
        return facts.isAlbum || (isSong ? track.source == problem.subject : !track.wasSent);
    });
    return found == facts.files.end() ? nullptr : &*found;
}

SongVerdict judgeTrack(const Sent& sent) {
    const TrackFact& track = *sent.track;
    if (const Problem* problem = problemOf(*sent.facts, track)) {
        return judgeFile(sent, *problem);
    }
    if (track.state == TrackState::kDone) {
        return songVerdict(track, Cause::kPublished, {});
    }
    if (track.wasSent) {
        return track.status > 0 ? judgeAnswer(sent) : judgeBroken(sent);
    }
    if (sent.facts->isCancelled) {
        return songVerdict(
            track, Cause::kStoppedBefore,
            sent.say(QCoreApplication::translate("xbr::host::Words", "“%1” was not sent."),
                     QCoreApplication::translate("xbr::host::Words", "The album “%1” was not sent.")));
    }
    return songVerdict(
        track, Cause::kNotPrepared,
        sent.say(
            QCoreApplication::translate("xbr::host::Words", "“%1” could not be prepared. It was not sent."),
            QCoreApplication::translate("xbr::host::Words",
                                        "The album “%1” could not be prepared. It was not sent.")));
}

// What became of all of them.

std::string wordsOfSuccess(const UploadFacts& facts) {
    const std::string count = std::to_string(facts.tracks.size());
    if (facts.isAlbum) {
        return facts.tracks.size() == 1
                   ? say(QCoreApplication::translate("xbr::host::Words",
                                                     "Published the album “%1” with one song."),
                         facts.albumTitle)
                   : say(QCoreApplication::translate("xbr::host::Words",
                                                     "Published the album “%1” with %2 songs."),
                         facts.albumTitle, count);
    }
    return facts.tracks.size() == 1
               ? say(QCoreApplication::translate("xbr::host::Words", "Published “%1”."),
                     facts.tracks.front().label)
               : say(QCoreApplication::translate("xbr::host::Words", "Published %1 songs as singles."),
                     count);
}

bool isDone(const SongVerdict& song) {
    return song.cause == Cause::kPublished;
}

/// A sentence about nothing but one song says by itself that this was not sent.
bool saysNothingSent(Cause cause) {
    return cause == Cause::kExpired || cause == Cause::kUntrusted || cause == Cause::kUnreachable ||
           cause == Cause::kNoFolder;
}

Verdict judgeStop(std::vector<SongVerdict> songs, SongVerdict first) {
    // A song that was refused before is not what was stopped.
    const auto stopped = std::find_if(songs.begin(), songs.end(), [](const SongVerdict& song) {
        return song.cause == Cause::kStopped || song.cause == Cause::kStoppedUnsure;
    });
    first = stopped == songs.end() ? std::move(first) : *stopped;
    const auto done = std::count_if(songs.begin(), songs.end(), &isDone);
    const bool isBefore = done == 0 && first.cause == Cause::kStoppedBefore;
    std::string sentence = say(QCoreApplication::translate("xbr::host::Words", "Stopped."));
    if (isBefore) {
        sentence = nothingSent(sentence);
    } else if (first.cause == Cause::kStoppedUnsure) {
        sentence = first.sentence;
    } else {
        sentence +=
            " " + say(QCoreApplication::translate("xbr::host::Words", "%1 of %2 songs are published."),
                      std::to_string(done), std::to_string(songs.size()));
        sentence += " " + first.sentence;
    }
    Verdict verdict =
        verdictOf(isBefore || first.cause == Cause::kStoppedUnsure ? first.cause : Cause::kStopped,
                  std::move(sentence));
    verdict.songs = std::move(songs);
    return verdict;
}

Verdict judgeFailure(std::vector<SongVerdict> songs) {
    const auto first = std::find_if_not(songs.begin(), songs.end(), &isDone);
    const bool isOneCode = std::all_of(songs.begin(), songs.end(), [first](const SongVerdict& song) {
        return rowOf(song.cause).code == rowOf(first->cause).code;
    });
    Verdict verdict = verdictOf(first->cause, saysNothingSent(first->cause) ? nothingSent(first->sentence)
                                                                            : first->sentence);
    verdict.code = isOneCode ? verdict.code : ExitCode::kNotAllDone;
    verdict.songs = std::move(songs);
    return verdict;
}

} // namespace

Verdict verdictOf(Cause cause, std::string sentence) {
    const CauseRow& row = rowOf(cause);
    Verdict verdict;
    verdict.cause = cause;
    verdict.code = row.code;
    verdict.kind = row.kind;
    verdict.sentence = std::move(sentence);
    verdict.next = row.next ? say(QCoreApplication::translate("xbr::host::Words", row.next)) : std::string();
    return verdict;
}

std::string nothingSent(const std::string& sentence) {
    return sentence + " " + say(QCoreApplication::translate("xbr::host::Words", "Nothing was sent."));
}

std::string reasonOf(const Problem& problem) {
    const std::string words = problem.code == 0
                                  ? problem.words
                                  : say(QCoreApplication::translate("xbr::host::Words", "it answered %1"),
                                        std::to_string(problem.code));
    return words.substr(0, words.size() - (words.ends_with('.') ? 1 : 0));
}

std::string wordsOfServer(const Problem& problem) {
    const std::string reason = reasonOf(problem);
    return problem.fault == Fault::kUntrusted
               ? say(QCoreApplication::translate("xbr::host::Words", "%1 could not prove its identity: %2."),
                     problem.subject, reason)
               : say(QCoreApplication::translate("xbr::host::Words",
                                                 "The service at %1 cannot be reached: %2."),
                     problem.subject, reason);
}

bool isAboutServer(const Problem& problem) {
    return problem.fault == Fault::kNoServer || problem.fault == Fault::kUntrusted;
}

Cause causeOfServer(const Problem& problem) {
    return problem.fault == Fault::kUntrusted ? Cause::kUntrusted : Cause::kUnreachable;
}

const char* nameOf(Cause cause) {
    return rowOf(cause).name;
}

Cause causeOf(const Finding& finding) {
    switch (finding.kind) {
    case Finding::Kind::kUnknownGenre:
        return Cause::kUnknownGenre;
    case Finding::Kind::kSameFile:
        return Cause::kSameFile;
    case Finding::Kind::kUnreadable:
        return finding.problem.fault == Fault::kModule ? Cause::kNoModule : Cause::kUnreadable;
    case Finding::Kind::kSameName:
        return Cause::kSameName;
    case Finding::Kind::kTwoNumbers:
        return Cause::kTwoNumbers;
    case Finding::Kind::kPublished:
        return Cause::kPublishedBefore;
    default:
        return Cause::kMissingDetails;
    }
}

namespace {

std::size_t countPublished(const Plan& plan) {
    return static_cast<std::size_t>(
        std::count_if(plan.findings.begin(), plan.findings.end(),
                      [](const Finding& each) { return each.kind == Finding::Kind::kPublished; }));
}

std::string wordsOfSeveral(std::size_t published, std::size_t songs) {
    return say(QCoreApplication::translate("xbr::host::Words",
                                           "%1 of %2 songs were published from this computer before."),
               std::to_string(published), std::to_string(songs));
}

} // namespace

Verdict judge(const Plan& plan) {
    Verdict verdict;
    if (!plan.canBeSent()) {
        const Finding& gravest = plan.findings.front();
        const std::size_t published = countPublished(plan);
        verdict =
            verdictOf(causeOf(gravest),
                      nothingSent(gravest.kind == Finding::Kind::kPublished && published > 1
                                      ? wordsOfSeveral(published, std::max(published, plan.songs().size()))
                                      : wordsOf(gravest)));
        if (gravest.kind == Finding::Kind::kMissingDetails) {
            verdict.next = wordsOfOptions(gravest.missing);
        }
        if (gravest.isWish) {
            verdict.code = ExitCode::kUsage;
        }
    }
    for (const Finding& finding : plan.findings) {
        if (plan.canBeSent() || &finding != &plan.findings.front()) {
            verdict.warnings.push_back(wordsOf(finding));
        }
    }
    return verdict;
}

Verdict judge(const UploadFacts& facts) {
    if (!facts.findings.empty()) {
        return verdictOf(causeOf(facts.findings.front()), nothingSent(wordsOf(facts.findings.front())));
    }
    if (facts.isNothingWaiting) {
        return verdictOf(Cause::kNothingWaits,
                         say(QCoreApplication::translate(
                             "xbr::host::Words",
                             "Nothing waits to be sent. Choose “Reset” in the menu of a song first.")));
    }
    std::vector<SongVerdict> songs;
    for (const TrackFact& track : facts.tracks) {
        songs.push_back(judgeTrack({&facts, &track}));
    }
    const auto done = static_cast<std::size_t>(std::count_if(songs.begin(), songs.end(), &isDone));
    if (done == songs.size()) {
        Verdict verdict = verdictOf(Cause::kPublished, wordsOfSuccess(facts));
        verdict.songs = std::move(songs);
        return verdict;
    }
    const SongVerdict first = *std::find_if_not(songs.begin(), songs.end(), &isDone);
    if (facts.isCancelled) {
        return judgeStop(std::move(songs), first);
    }
    if (done == 0) {
        Verdict verdict = judgeFailure(std::move(songs));
        if (verdict.cause == Cause::kRefusedMissing) {
            verdict.next = wordsOfOptions(missingIn({&facts, &facts.tracks.front()}));
        }
        return verdict;
    }
    Verdict verdict = verdictOf(
        Cause::kPartly, say(QCoreApplication::translate("xbr::host::Words", "Published %1 of %2 songs. %3"),
                            std::to_string(done), std::to_string(songs.size()), first.sentence));
    verdict.songs = std::move(songs);
    return verdict;
}

Verdict judgeModule(const Problem& problem) {
    return verdictOf(
        Cause::kNoModule,
        problem.subject.empty()
            ? say(QCoreApplication::translate("xbr::host::Words",
                                              "No module was found. Songs cannot be published."))
            : say(QCoreApplication::translate("xbr::host::Words", "“%1” %2. Songs cannot be published."),
                  problem.subject, problem.words));
}

} // namespace xbr::host
