#include "host/app/publishing/verdict/verdict.h"

#include "host/app/publishing/verdict/words.h"

#include <algorithm>

namespace xbr::host {

namespace {

/// "Add them with --title, --genre."
std::string wordsOfOptions(const std::vector<Detail>& missing) {
    static constexpr const char* kOptions[] = {"--album-title", "--album-artist", "--genre", "--title",
                                               "--artist"};
    std::string options;
    for (const Detail detail : missing) {
        options += (options.empty() ? "" : ", ") + std::string(kOptions[static_cast<std::size_t>(detail)]);
    }
    if (missing.size() < 2) {
        return missing.empty() ? std::string() : say(Words::tr("Add it with %1."), options);
    }
    return say(Words::tr("Add them with %1."), options);
}

/// What keeps a plan from being sent.
std::string wordsOfGravest(const Plan& plan) {
    const Finding& gravest = plan.findings.front();
    const auto published = std::count_if(plan.findings.begin(), plan.findings.end(), [](const Finding& each) {
        return each.kind == Finding::Kind::kPublished;
    });
    if (gravest.kind != Finding::Kind::kPublished || published < 2) {
        return wordsOf(gravest);
    }
    const auto songs = std::max(static_cast<std::size_t>(published), plan.songs().size());
    return say(Words::tr("%1 of %2 songs were published from this computer before."),
               std::to_string(published), std::to_string(songs));
}

// What became of all songs.

std::string wordsOfSuccess(const UploadFacts& facts) {
    const std::string count = std::to_string(facts.tracks.size());
    if (facts.isAlbum) {
        return facts.tracks.size() == 1
                   ? say(Words::tr("Published the album “%1” with one song."), facts.albumTitle)
                   : say(Words::tr("Published the album “%1” with %2 songs."), facts.albumTitle, count);
    }
    return facts.tracks.size() == 1 ? say(Words::tr("Published “%1”."), facts.tracks.front().label)
                                    : say(Words::tr("Published %1 songs as singles."), count);
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
    std::string sentence = say(Words::tr("Stopped."));
    if (isBefore) {
        sentence = nothingSent(sentence);
    } else if (first.cause == Cause::kStoppedUnsure) {
        sentence = first.sentence;
    } else {
        sentence += " " + say(Words::tr("%1 of %2 songs are published."), std::to_string(done),
                              std::to_string(songs.size()));
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
    verdict.next = row.next ? say(Words::tr(row.next)) : std::string();
    return verdict;
}

std::string nothingSent(const std::string& sentence) {
    return sentence + " " + say(Words::tr("Nothing was sent."));
}

Verdict judge(const Plan& plan) {
    Verdict verdict;
    if (!plan.canBeSent()) {
        const Finding& gravest = plan.findings.front();
        verdict = verdictOf(causeOf(gravest), nothingSent(wordsOfGravest(plan)));
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
        return verdictOf(
            Cause::kNothingWaits,
            say(Words::tr("Nothing waits to be sent. Choose “Reset” in the menu of a song first.")));
    }
    std::vector<SongVerdict> songs;
    for (const TrackFact& track : facts.tracks) {
        songs.push_back(judge(facts, track));
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
            verdict.next = wordsOfOptions(missingIn(facts, facts.tracks.front()));
        }
        return verdict;
    }
    Verdict verdict =
        verdictOf(Cause::kPartly, say(Words::tr("Published %1 of %2 songs. %3"), std::to_string(done),
                                      std::to_string(songs.size()), first.sentence));
    verdict.songs = std::move(songs);
    return verdict;
}

Verdict judgeModule(const Problem& problem) {
    return verdictOf(Cause::kNoModule, problem.subject.empty()
                                           ? say(Words::tr("No module was found. Songs cannot be published."))
                                           : say(Words::tr("“%1” %2. Songs cannot be published."),
                                                 problem.subject, problem.words));
}

} // namespace xbr::host
