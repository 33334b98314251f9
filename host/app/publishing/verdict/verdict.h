#pragma once

#include "host/app/publishing/verdict/cause.h"
#include "host/app/publishing/verdict/songverdict.h"

#include <string>
#include <vector>

namespace xbr::host {

/// What to tell the user, and how the program ends.
struct Verdict {
    Cause cause = Cause::kPublished;
    ExitCode code = ExitCode::kDone;
    NoticeKind kind = NoticeKind::kDone;
    std::string sentence;
    std::string next;                  ///< what can be done about it, on the command line; may be empty
    std::vector<std::string> warnings; ///< what is worth knowing besides
    std::vector<SongVerdict> songs;    ///< of an upload

    bool isGood() const { return code == ExitCode::kDone; }
};

/// Of a plan that cannot be sent, or can.
Verdict judge(const Plan& plan);

Verdict judge(const UploadFacts& facts);

/// Of a module that cannot be used.
Verdict judgeModule(const Problem& problem);

// What verdicts are made of

Verdict verdictOf(Cause cause, std::string sentence);

/// The sentence, and that nothing was sent.
std::string nothingSent(const std::string& sentence);

} // namespace xbr::host
