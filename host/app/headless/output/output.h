#pragma once

#include "host/app/headless/commandline/commandline.h"
#include "host/app/process/exitcodes.h"
#include "host/app/publishing/plan.h"
#include "host/app/publishing/upload/progress.h"
#include "host/app/publishing/upload/tracks.h"
#include "host/app/publishing/verdict/verdict.h"

#include <QCoreApplication>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace xbr::host {

/// A release as a run would send it.
struct Draft {
    const PlannedRelease& release;
    std::string problem; ///< with its genre; empty when there is none
    bool isIncomplete;
    std::size_t index; ///< from 0
    std::size_t count;
};

/// What became of a song.
struct SongResult {
    std::int32_t index = -1; ///< in the panel's list; -1 for a song that did not get there
    std::string title;
    std::string source;
    Cause cause = Cause::kPublished;
    int status = 0;       ///< of the service's answer; 0 when none came
    std::string sentence; ///< empty when it is published
    bool isLeftOut = false;

    bool isUnsure() const { return cause == Cause::kLostUnsure || cause == Cause::kStoppedUnsure; }
    bool isPublished() const { return cause == Cause::kPublished; }
};

/// What is known at the end of a run.
struct RunEnd {
    Verdict verdict;
    std::vector<SongResult> songs; ///< empty where no songs were meant
    std::string account;           ///< who published; may be empty
    std::int64_t bytes = 0;        ///< that left
    std::int64_t milliseconds = 0; ///< since the first did
};

/// Tells the user, or a program that started us, what happens. Texts may come from outside and hold anything.
class Output {
    Q_DECLARE_TR_FUNCTIONS(Output)

public:
    virtual ~Output() = default;

    /// Something worth knowing.
    virtual void message(std::string_view text) = 0;

    /// The address at which the user grants access.
    virtual void signInAddress(std::string_view url) = 0;

    /// The sign-in that is in force; the account may be unknown.
    virtual void account(bool isSignedIn, std::string_view name) = 0;

    /// How far work before the transfer is; at most some times a second.
    virtual void preparation(std::string_view title, double fraction, std::string_view what) = 0;
    virtual void preparing(const PreparationProgress& /*progress*/) {}

    /// A track looks different from before.
    virtual void track(const TrackReport& track, std::size_t count) = 0;

    /// Bytes are on their way; some times a second.
    virtual void sending(const UploadProgress& progress) = 0;

    /// What a plan found, and why it matters.
    virtual void finding(const Finding& finding) = 0;

    virtual void draft(const Draft& draft) = 0;
    virtual void genre(std::string_view name) = 0;

    /// The end; nothing follows.
    virtual void finished(const RunEnd& end) = 0;

    /// The end of what is not about songs; `text` is what was wrong, empty for nothing.
    virtual void ended(ExitCode code, std::string_view text) = 0;
};

/// True when there is somebody at a terminal who can be asked, and may be.
bool isAnswered(const CommandLine& commandLine);

/// As the command line wants it.
std::unique_ptr<Output> makeOutput(const CommandLine& commandLine);
std::unique_ptr<Output> makeTextOutput(bool isQuiet, bool isVerbose, bool isAnswered);
std::unique_ptr<Output> makeJsonOutput();

/// Writes "xbrhost: <text>" to standard error.
void printError(std::string_view text);

/// The sentence of a verdict, and what can be done about it.
std::string sentenceOf(const Verdict& verdict);

} // namespace xbr::host
