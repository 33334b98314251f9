#include "host/app/headless/publishcommand.h"

#include "host/app/headless/consolefront.h"
#include "host/app/headless/releasefile.h"
#include "host/app/publishing/publishing.h"
#include "host/app/publishing/words.h"

#include <QEventLoop>

#include <algorithm>
#include <iostream>
#include <unistd.h>

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
    void trackChanged(const TrackReport& track) override { m_output->track(track, m_count); }
    void ended(const Verdict& verdict) override {
        m_verdict = verdict;
        m_loop->quit();
    }

    const Verdict& verdict() const { return m_verdict; }

private:
    Output* m_output;
    QEventLoop* m_loop;
    std::size_t m_count = 0;
    Verdict m_verdict;
};

std::vector<SongFile> readSongs(const ReleaseWish& wish) {
    std::vector<SongFile> songs;
    for (const SongWish& song : wish.songs) {
        songs.push_back(readSongFile(song.path));
    }
    return songs;
}

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
Verdict runDry(const Plan& plan, Output& output) {
    const bool isShown = std::none_of(plan.findings.begin(), plan.findings.end(), [](const Finding& finding) {
        return finding.weight == Finding::Weight::kFatal;
    });
    for (std::size_t i = 0; isShown && i < plan.releases.size(); ++i) {
        const PlannedRelease& release = plan.releases[i];
        output.draft({release, genreProblem(plan, release), isIncomplete(release), i, plan.releases.size()});
    }
    return judge(plan);
}

/// True when the user wants the others to go without the songs that cannot be published.
bool isLeavingOutWanted(const Plan& plan, bool mayAsk) {
    const auto isUnreadable = [](const Finding& finding) {
        return finding.kind == Finding::Kind::kUnreadable && finding.weight == Finding::Weight::kFatal;
    };
    if (!mayAsk || plan.releases.empty() ||
        std::none_of(plan.findings.begin(), plan.findings.end(), isUnreadable)) {
        return false;
    }
    for (const Finding& finding : plan.findings) {
        if (isUnreadable(finding)) {
            printError(wordsOf(finding));
        }
    }
    std::cerr << "Publish the other songs? [y/N] " << std::flush;
    std::string answer;
    std::getline(std::cin, answer);
    return answer == "y" || answer == "Y";
}

class PublishRun {
public:
    PublishRun(ConsoleSession& console, const PublishEntry& entry)
        : m_console(&console),
          m_entry(entry),
          m_view(console.output(), m_loop),
          m_publishing(console.session().activity(), console.session().settings(), console.panel(), m_view) {}

    Verdict run(ReleaseWish wish, bool isDryRun, bool mayAsk) {
        const std::vector<SongFile> songs = readSongs(wish);
        Plan plan = m_publishing.plan(m_entry, wish, songs);
        if (isDryRun) {
            return runDry(plan, m_console->output());
        }
        if (isLeavingOutWanted(plan, mayAsk)) {
            wish.skipsUnreadable = true;
            plan = m_publishing.plan(m_entry, wish, songs);
        }
        const Verdict verdict = judge(plan);
        return verdict.isGood() ? publish(std::move(plan), verdict.warnings) : verdict;
    }

private:
    Verdict publish(Plan plan, const std::vector<std::string>& warnings) {
        const auto interrupted =
            m_console->session().interruption().subscribe([this] { m_publishing.stop(); });
        m_publishing.publish(m_entry, std::move(plan));
        m_loop.exec();
        Verdict verdict = m_view.verdict();
        verdict.warnings.insert(verdict.warnings.begin(), warnings.begin(), warnings.end());
        return verdict;
    }

    ConsoleSession* m_console;
    PublishEntry m_entry;
    QEventLoop m_loop;
    PublishView m_view;
    Publishing m_publishing;
};

ExitCode finish(Output& output, const Verdict& verdict) {
    output.finished(verdict);
    printVerdict(verdict);
    return verdict.code;
}

} // namespace

ExitCode runPublish(const CommandLine& commandLine) {
    const PublishOptions& options = commandLine.publish;
    ReleaseWish wish = options.wish;
    ConsoleSession console(commandLine, options.isDryRun ? Dialogs::kNone : Dialogs::kOffered);
    std::string error;
    if (!options.releaseFile.empty() && !readReleaseFile(options.releaseFile, wish, error)) {
        console.output().finished(ExitCode::kUsage);
        printError(error);
        return ExitCode::kUsage;
    }
    wish.skipsUnreadable = options.wish.skipsUnreadable;
    wish.skipsIncomplete = options.wish.skipsIncomplete;
    const ExitCode started = console.start();
    if (started != ExitCode::kDone) {
        return started;
    }
    const auto entries = findPublishEntries();
    if (entries.empty() || !console.panel().tracks()) {
        return finish(console.output(), judgeModule({Fault::kModule,
                                                     commandLine.module,
                                                     0,
                                                     "it has no publish entry, or no list of songs",
                                                     {},
                                                     {}}));
    }
    const bool mayAsk = !commandLine.isJson && isatty(STDIN_FILENO) == 1 && isatty(STDERR_FILENO) == 1;
    return finish(console.output(),
                  PublishRun(console, entries.front()).run(std::move(wish), options.isDryRun, mayAsk));
}

} // namespace xbr::host
