#include "host/app/headless/publishcommand.h"

#include "host/app/headless/commandline/folders.h"
#include "host/app/headless/commandline/releasefile.h"
#include "host/app/headless/consolefront.h"
#include "host/app/publishing/publishing.h"
#include "host/app/publishing/verdict/words.h"

#include <QElapsedTimer>
#include <QEventLoop>

#include <algorithm>
#include <iostream>

namespace xbr::host {

namespace {

/// Shows what happens on the output, and remembers how it ended.
class PublishView final : public PublishingListener {
public:
    PublishView(Output& output, QEventLoop& loop) : m_output(&output), m_loop(&loop) {}

    void tracksKnown(const std::vector<TrackReport>& tracks) override {
        m_count = tracks.size();
        for (const TrackReport& track : tracks) {
            m_output->track(track, m_count);
        }
    }
    void signedIn(const Verdict& verdict, const std::string& account) override {
        m_output->account(true, account);
        m_output->message(verdict.sentence);
    }
    void preparing(const PreparationProgress& progress) override { m_output->preparing(progress); }
    void trackChanged(const TrackReport& track) override {
        if (track.isUploading && !m_sending.isValid()) {
            m_sending.start();
        }
        m_output->track(track, m_count);
    }
    void sending(const UploadProgress& progress) override { m_output->sending(progress); }
    void ended(const Verdict& verdict) override {
        m_end.verdict = verdict;
        m_end.milliseconds = m_sending.isValid() ? m_sending.elapsed() : 0;
        m_loop->quit();
    }

    const RunEnd& end() const { return m_end; }

private:
    Output* m_output;
    QEventLoop* m_loop;
    std::size_t m_count = 0;
    QElapsedTimer m_sending; ///< since the first song went
    RunEnd m_end;
};

bool isIncomplete(const PlannedRelease& release) {
    return !release.missing.empty() || std::any_of(release.songs.begin(), release.songs.end(),
                                                   [](const auto& song) { return !song.missing.empty(); });
}

/// What is wrong with a release's genre; empty when nothing is.
std::string genreProblem(const Plan& plan, const PlannedRelease& release) {
    for (const Finding& finding : plan.findings) {
        if (finding.kind == Finding::Kind::kUnknownGenre && finding.path == release.songs.front().source) {
            return wordsOf(finding);
        }
    }
    return {};
}

/// Shows what a run would send, unless it could not even be handed over.
void showDrafts(const Plan& plan, Output& output) {
    const bool isShown = std::none_of(plan.findings.begin(), plan.findings.end(), [](const Finding& finding) {
        return finding.weight == Finding::Weight::kFatal;
    });
    for (std::size_t i = 0; isShown && i < plan.releases.size(); ++i) {
        const PlannedRelease& release = plan.releases[i];
        output.draft({release, genreProblem(plan, release), isIncomplete(release), i, plan.releases.size()});
    }
}

bool isUnreadable(const Finding& finding) {
    return finding.kind == Finding::Kind::kUnreadable && finding.weight == Finding::Weight::kFatal;
}

bool isPublished(const Finding& finding) {
    return finding.kind == Finding::Kind::kPublished;
}

/// Shows the findings that a question is about, and asks it. False when there are none.
bool isWanted(const Plan& plan, bool (*isMeant)(const Finding&), const std::string& question) {
    bool isAsked = false;
    for (const Finding& finding : plan.findings) {
        if (isMeant(finding)) {
            printError(wordsOf(finding));
            isAsked = true;
        }
    }
    if (!isAsked) {
        return false;
    }
    std::cerr << question << " [y/N] " << std::flush;
    std::string answer;
    std::getline(std::cin, answer);
    return answer == "y" || answer == "Y";
}

/// Asks what is to become of the songs that cannot be published, and of those that were. True when the wish
/// is another one now.
bool askAbout(const Plan& plan, ReleaseWish& wish) {
    const bool isBroken = std::any_of(plan.findings.begin(), plan.findings.end(), isUnreadable);
    const auto question =
        say(isBroken ? Output::tr("Publish the other songs?") : Output::tr("Publish them again?"));
    const bool isHopeless = isBroken && plan.releases.empty();
    if (isHopeless || !isWanted(plan, isBroken ? isUnreadable : isPublished, question)) {
        return false;
    }
    (isBroken ? wish.skipsUnreadable : wish.sendsAgain) = true;
    return true;
}

/// Tells what a plan found, but for what the verdict is about.
void tellFindings(const Plan& plan, Output& output) {
    for (std::size_t i = plan.canBeSent() ? 0 : 1; i < plan.findings.size(); ++i) {
        output.finding(plan.findings[i]);
    }
}

SongResult resultOf(const SongVerdict& song, std::int32_t index) {
    return {index, song.label, song.source, song.cause, song.status, song.sentence, false};
}

/// What became of each song that was asked for: those in the panel's list, then those that were left out.
std::vector<SongResult> resultsOf(const Plan& plan, const ReleaseWish& wish, const Verdict& verdict) {
    std::vector<SongResult> results;
    std::vector<bool> isPlanned(wish.songs.size());
    for (const PlannedSong* song : plan.songs()) {
        const auto index = static_cast<std::int32_t>(results.size());
        isPlanned[song->wish] = true;
        results.push_back(
            results.size() < verdict.songs.size()
                ? resultOf(verdict.songs[results.size()], index)
                : SongResult{index, song->title, song->source, verdict.cause, 0, verdict.sentence, false});
    }
    for (std::size_t i = 0; i < wish.songs.size(); ++i) {
        const auto finding =
            std::find_if(plan.findings.begin(), plan.findings.end(),
                         [&](const Finding& each) { return each.path == wish.songs[i].path; });
        if (!isPlanned[i] && finding != plan.findings.end()) {
            results.push_back({-1, finding->song, finding->path, causeOf(*finding), 0, wordsOf(*finding),
                               finding->weight == Finding::Weight::kToBeKnown});
        }
    }
    return results;
}

class PublishRun {
public:
    /// `account` is the only one to send as; empty for any.
    PublishRun(ConsoleSession& console, const PublishEntry& entry, const std::string& account)
        : m_console(&console),
          m_entry(entry),
          m_view(console.output(), m_loop),
          m_publishing(console.session().activity(), console.session().settings(), console.panel(), m_view) {
        m_publishing.setAccount(account);
    }

    RunEnd run(ReleaseWish wish, bool isDryRun, bool mayAsk) {
        const std::vector<SongFile> songs = readSongs(wish);
        Plan plan = m_publishing.plan(m_entry, wish, songs);
        if (isDryRun) {
            showDrafts(plan, m_console->output());
        } else {
            while (mayAsk && askAbout(plan, wish)) {
                plan = m_publishing.plan(m_entry, wish, songs);
            }
        }
        tellFindings(plan, m_console->output());
        RunEnd end;
        end.verdict = judge(plan);
        end.verdict.warnings.clear(); // told already
        if (isDryRun) {
            return end;
        }
        if (end.verdict.isGood()) {
            end = publish(plan);
        }
        end.songs = resultsOf(plan, wish, end.verdict);
        return end;
    }

private:
    std::vector<SongFile> readSongs(const ReleaseWish& wish) const {
        std::vector<SongFile> songs;
        for (const SongWish& song : wish.songs) {
            songs.push_back(readSongFile(song.path));
            const auto known = wish.sendsAgain ? std::nullopt : m_publishing.findPublished(song.path);
            songs.back().published = known ? known->time : 0;
        }
        return songs;
    }

    RunEnd publish(const Plan& plan) {
        const auto interrupted =
            m_console->session().interruption().subscribe([this] { m_publishing.stop(); });
        m_publishing.publish(m_entry, plan);
        m_loop.exec();
        RunEnd end = m_view.end();
        for (const SongVerdict& song : end.verdict.songs) {
            end.bytes = plan.isAlbum() ? song.sent : end.bytes + song.sent;
        }
        end.account = m_console->panel().text("userName");
        return end;
    }

    ConsoleSession* m_console;
    PublishEntry m_entry;
    QEventLoop m_loop;
    PublishView m_view;
    Publishing m_publishing;
};

/// The songs that are meant: a release file's, or those of the command line, and of folders their songs.
Outcome<ReleaseWish> wishOf(const CommandLine& commandLine) {
    ReleaseWish wish = commandLine.wish;
    std::string error;
    if (!commandLine.releaseFile.empty() && !readReleaseFile(commandLine.releaseFile, wish, error)) {
        return Problem{Fault::kWish, {}, 0, error, {}, {}};
    }
    wish.skipsUnreadable = commandLine.wish.skipsUnreadable;
    wish.skipsIncomplete = commandLine.wish.skipsIncomplete;
    wish.sendsAgain = commandLine.wish.sendsAgain;
    if (auto expanded = expandFolders(wish, commandLine.isRecursive); !expanded) {
        return expanded.problem();
    }
    return wish;
}

} // namespace

ExitCode runPublish(const CommandLine& commandLine) {
    ConsoleSession console(commandLine, commandLine.isDryRun ? Dialogs::kNone : Dialogs::kUnlessStored);
    auto wish = wishOf(commandLine);
    if (!wish) {
        const ExitCode code =
            wish.problem().fault == Fault::kWish ? ExitCode::kUsage : ExitCode::kFileProblem;
        console.output().ended(code, wish.problem().words);
        return code;
    }
    const ExitCode started = console.start();
    if (started != ExitCode::kDone) {
        return started;
    }
    RunEnd end;
    const auto entries = findPublishEntries();
    if (entries.empty() || !console.panel().tracks()) {
        end.verdict = judgeModule(
            {Fault::kModule, commandLine.module, 0, say(CommandLine::tr("takes no songs")), {}, {}});
    } else {
        end = PublishRun(console, entries.front(), commandLine.account)
                  .run(std::move(*wish), commandLine.isDryRun, isAnswered(commandLine));
    }
    console.output().finished(end);
    return end.verdict.code;
}

} // namespace xbr::host
