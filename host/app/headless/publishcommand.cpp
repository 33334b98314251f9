#include "host/app/headless/publishcommand.h"

#include "host/app/headless/consolefront.h"
#include "host/app/headless/fieldnames.h"
#include "host/app/headless/releasefile.h"
#include "host/app/publishing/publishsession.h"

#include <QEventLoop>

namespace xbr::host {

namespace {

ExitCode exitCodeOf(PublishResult result) {
    switch (result) {
    case PublishResult::kDone:
        return ExitCode::kDone;
    case PublishResult::kNotAllDone:
        return ExitCode::kNotAllDone;
    case PublishResult::kWrongPlan:
        return ExitCode::kUsage;
    case PublishResult::kFileProblem:
        return ExitCode::kFileProblem;
    case PublishResult::kNoPublisher:
        return ExitCode::kModuleProblem;
    case PublishResult::kNotConfigured:
        return ExitCode::kNotConfigured;
    case PublishResult::kNotSignedIn:
        return ExitCode::kNotSignedIn;
    case PublishResult::kSignInExpired:
        return ExitCode::kSignInExpired;
    case PublishResult::kUnreachable:
        return ExitCode::kUnreachable;
    case PublishResult::kInformationMissing:
        return ExitCode::kInformationMissing;
    case PublishResult::kCancelled:
        break;
    }
    return ExitCode::kInterrupted;
}

std::string describe(const IncompleteTrack& track, const TrackReport& report) {
    return "track " + std::to_string(track.index + 1) + " '" + labelOf(report) + "': missing " +
           describeFields(track.fields);
}

/// Shows a session on the output and remembers how it ended.
class PublishView final : public PublishListener {
public:
    PublishView(Output& output, QEventLoop& loop) : m_output(&output), m_loop(&loop) {}

    void tracksKnown(const std::vector<TrackReport>& tracks) override {
        m_count = tracks.size();
        for (const TrackReport& track : tracks) {
            m_output->track(track, m_count);
        }
    }
    void trackChanged(const TrackReport& track) override { m_output->track(track, m_count); }
    void finished(const PublishOutcome& outcome) override {
        m_outcome = outcome;
        m_loop->quit();
    }

    const PublishOutcome& outcome() const { return m_outcome; }

private:
    Output* m_output;
    QEventLoop* m_loop;
    std::size_t m_count = 0;
    PublishOutcome m_outcome;
};

void tellProblem(const PublishOutcome& outcome, const ConfigurationReport& report) {
    if (outcome.result == PublishResult::kNotConfigured) {
        printError(describeProblem(report));
    } else if (outcome.result == PublishResult::kNotSignedIn) {
        printError("not signed in: nothing was sent");
    } else if (outcome.result == PublishResult::kCancelled) {
        printError("interrupted");
    } else if (outcome.result == PublishResult::kSignInExpired) {
        printError(outcome.detail + kRenewHint);
    } else if (!outcome.detail.empty()) {
        printError(outcome.detail);
    }
    for (const IncompleteTrack& track : outcome.incomplete) {
        printError(describe(track, outcome.tracks[static_cast<std::size_t>(track.index)]));
    }
}

/// One line for the files that did not arrive; each of them was told of before.
void tellTracks(const PublishOutcome& outcome) {
    std::size_t open = 0;
    for (const TrackReport& track : outcome.tracks) {
        open += track.state == TrackState::kDone ? 0 : 1;
    }
    if (outcome.result == PublishResult::kNotAllDone && open > 0) {
        printError(std::to_string(open) + " of " + std::to_string(outcome.tracks.size()) +
                   " tracks were not taken by the service");
    } else if (outcome.result == PublishResult::kInformationMissing) {
        printError("nothing was taken: information is missing");
    }
}

ExitCode runSession(ConsoleSession& console, ReleaseWish plan) {
    HostSession& session = console.session();
    QEventLoop loop;
    PublishView view(console.output(), loop);
    PublishSession publishing(console.panel(), session.settings(), session.activity(), view);
    const auto interrupted = session.interruption().subscribe([&publishing] { publishing.cancel(); });
    publishing.start(std::move(plan));
    loop.exec();
    const ExitCode code = exitCodeOf(view.outcome().result);
    console.output().finished(code);
    tellProblem(view.outcome(), session.settings());
    tellTracks(view.outcome());
    return code;
}

void tellMissing(const ReleaseDraft& release, std::size_t index) {
    const std::string where = "release " + std::to_string(index + 1);
    if (!release.missing.empty()) {
        printError(where + ": missing " + describeFields(release.missing));
    }
    if (!release.genreProblem.empty()) {
        printError(where + ": " + release.genreProblem);
    }
    for (const SongDraft& song : release.songs) {
        if (!song.missing.empty()) {
            printError(where + ", '" + song.source + "': missing " + describeFields(song.missing));
        }
    }
}

/// Shows what the module would send of the songs that it took.
ExitCode showDrafts(ConsoleSession& console, const ReleaseWish& plan, const ReleaseIntake& intake) {
    const auto releases = readDrafts(console.panel(), intake, plan.mode);
    bool isComplete = true;
    for (std::size_t i = 0; i < releases.size(); ++i) {
        console.output().draft(releases[i], i, releases.size());
        isComplete = isComplete && releases[i].isComplete();
    }
    console.output().finished(isComplete ? ExitCode::kDone : ExitCode::kInformationMissing);
    for (std::size_t i = 0; i < releases.size(); ++i) {
        tellMissing(releases[i], i);
    }
    return isComplete ? ExitCode::kDone : ExitCode::kInformationMissing;
}

ExitCode runDry(ConsoleSession& console, const ReleaseWish& plan) {
    ReleaseIntake intake(console.panel(), Rendering::kPretend);
    const ReleaseIntake::Outcome outcome = intake.take(plan);
    if (outcome.result == PublishResult::kDone) {
        return showDrafts(console, plan, intake);
    }
    const ExitCode code = exitCodeOf(outcome.result);
    console.output().finished(code);
    printError(outcome.detail);
    return code;
}

} // namespace

ExitCode runPublish(const CommandLine& commandLine) {
    ReleaseWish plan = commandLine.publish.plan;
    const std::string& releaseFile = commandLine.publish.releaseFile;
    const bool isDryRun = commandLine.publish.isDryRun;
    ConsoleSession console(commandLine, isDryRun ? Dialogs::kNone : Dialogs::kOffered);
    std::string error;
    if (!releaseFile.empty() && !readReleaseFile(releaseFile, plan, error)) {
        console.output().finished(ExitCode::kUsage);
        printError(error);
        return ExitCode::kUsage;
    }
    const ExitCode started = console.start();
    if (started != ExitCode::kDone) {
        return started;
    }
    return isDryRun ? runDry(console, plan) : runSession(console, std::move(plan));
}

} // namespace xbr::host
