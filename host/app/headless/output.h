#pragma once

#include "host/app/process/exitcodes.h"
#include "host/app/publishing/plan.h"
#include "host/app/publishing/upload/tracks.h"
#include "host/app/publishing/verdict.h"

#include <memory>
#include <string>
#include <string_view>

namespace xbr::host {

/// A release as a run would send it.
struct Draft {
    const PlannedRelease& release;
    std::string problem; ///< with its genre; empty when there is none
    bool isIncomplete;
    std::size_t index; ///< from 0
    std::size_t count;
};

/// Tells the user, or a program that started us, what happens. Texts may come from outside and hold anything.
class Output {
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

    /// A track looks different from before.
    virtual void track(const TrackReport& track, std::size_t count) = 0;

    virtual void draft(const Draft& draft) = 0;

    /// The end; nothing follows.
    virtual void finished(ExitCode code) = 0;
    virtual void finished(const Verdict& verdict) = 0;
};

std::unique_ptr<Output> makeTextOutput();
std::unique_ptr<Output> makeJsonOutput();

/// Writes "xbrhost: <text>" to standard error.
void printError(std::string_view text);

/// Writes what is not good about a verdict, and what can be done about it, to standard error.
void printVerdict(const Verdict& verdict);

} // namespace xbr::host
