#include "host/app/headless/publishcommand.h"

#include "host/app/core/publishsession.h"
#include "host/app/headless/headlesshost.h"

#include <QEventLoop>

namespace xbr::host {

namespace {

ExitCode exitCodeOf(PublishResult result) {
    switch (result) {
    case PublishResult::kDone:
        return ExitCode::kDone;
    case PublishResult::kNotAllDone:
        return ExitCode::kNotAllDone;
    case PublishResult::kFileProblem:
        return ExitCode::kFileProblem;
    case PublishResult::kNoPublisher:
        return ExitCode::kModuleProblem;
    case PublishResult::kNotConfigured:
        return ExitCode::kNotConfigured;
    case PublishResult::kNotSignedIn:
        return ExitCode::kNotSignedIn;
    case PublishResult::kUnreachable:
        return ExitCode::kUnreachable;
    case PublishResult::kInformationMissing:
        return ExitCode::kInformationMissing;
    case PublishResult::kCancelled:
        break;
    }
    return ExitCode::kInterrupted;
}

struct FieldName {
    std::string_view field;
    const char* name;
};

constexpr FieldName kFieldNames[] = {{"albumTitle", "album title"},
                                     {"albumArtist", "album artist"},
                                     {"primaryGenre", "genre"},
                                     {"songTitle", "song title"},
                                     {"songArtist", "song artist"}};

std::string nameOf(const std::string& field) {
    for (const FieldName& known : kFieldNames) {
        if (known.field == field) {
            return known.name;
        }
    }
    return field;
}

std::string describe(const IncompleteTrack& track, const TrackReport& report) {
    std::string fields;
    for (const std::string& field : track.fields) {
        fields += (fields.empty() ? "" : ", ") + nameOf(field);
    }
    return "track " + std::to_string(track.index + 1) + " '" + labelOf(report) + "': missing " + fields;
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
    if (outcome.result == PublishResult::kNotAllDone) {
        printError(std::to_string(open) + " of " + std::to_string(outcome.tracks.size()) +
                   " tracks were not taken by the service");
    } else if (outcome.result == PublishResult::kInformationMissing) {
        printError("nothing was taken: information is missing");
    }
}

ExitCode runSession(HeadlessHost& host, const CommandLine& commandLine) {
    ConsoleContext& context = host.context();
    QEventLoop loop;
    PublishView view(*context.output, loop);
    PublishSession session(host.panel(), *context.configuration, context.activity, view);
    const auto interrupted = context.interruption.subscribe([&session] { session.cancel(); });
    session.start(commandLine.arguments, commandLine.isAlbum ? ReleaseMode::kAlbum : ReleaseMode::kSingles);
    loop.exec();
    const ExitCode code = exitCodeOf(view.outcome().result);
    context.output->finished(code);
    tellProblem(view.outcome(), *context.configuration);
    tellTracks(view.outcome());
    return code;
}

} // namespace

ExitCode runPublish(const CommandLine& commandLine) {
    HeadlessHost host(commandLine, Dialogs::kOffered);
    std::string error;
    if (!host.start(error)) {
        host.context().output->finished(ExitCode::kModuleProblem);
        printError(error);
        return ExitCode::kModuleProblem;
    }
    host.listenForCallbacks();
    return runSession(host, commandLine);
}

} // namespace xbr::host
