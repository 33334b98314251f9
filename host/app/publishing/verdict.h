#pragma once

#include "host/app/process/exitcodes.h"
#include "host/app/publishing/notice.h"
#include "host/app/publishing/plan.h"

#include <cstdint>
#include <string>
#include <vector>

namespace xbr::host {

/// What came of it, and why.
enum class Cause : std::uint8_t {
    kPublished,
    kSignedIn,
    kPartly,
    kMissingDetails,
    kUnknownGenre,
    kRefusedMissing,
    kSameFile,
    kSameName,
    kUnreadable,
    kGone,
    kChanged,
    kDiskFull,
    kNoFolder,
    kNotPrepared,
    kTwoNumbers,
    kPublishedBefore,
    kNothingWaits,
    kStoppedBefore,
    kStopped,
    kStoppedUnsure,
    kLostUnsure,
    kRefused,
    kTooLarge,
    kServiceFault,
    kTooMany,
    kLost,
    kUntrusted,
    kUnreachable,
    kExpired,
    kNotSignedIn,
    kOtherAccount,
    kSignedOut,
    kKeyringNone,
    kKeyringLocked,
    kKeyringSilent,
    kNotSetUp,
    kNoModule,
};

/// The name for programs: "missing-details".
const char* nameOf(Cause cause);

Cause causeOf(const Finding& finding);

/// What is known of a track when nothing moves any more.
struct TrackFact {
    std::string label;  ///< its title, or the name of its file
    std::string source; ///< path of the file that the user chose
    TrackState state = TrackState::kNone;
    std::vector<Detail> missing; ///< empty fields of the panel's editor

    // The request that carried it
    bool wasSent = false;
    bool isNew = false;     ///< it was sent in this upload
    std::int64_t sent = 0;  ///< bytes that left
    std::int64_t total = 0; ///< bytes of the body
    int status = 0;         ///< 0: no answer came
    std::string said;       ///< the service's own words
    std::int64_t wait = -1; ///< seconds that it asks to wait; -1 for none
    Problem problem;        ///< why no answer came
};

struct UploadFacts {
    std::vector<TrackFact> tracks;
    bool isAlbum = false;
    std::string albumTitle;
    std::vector<Problem> files; ///< files that could not be copied or written meanwhile, by the user's names
    std::string folder;         ///< for copies
    std::int64_t neededSpace = 0; ///< in there
    std::int64_t freeSpace = 0;
    std::vector<Finding> findings; ///< why the host did not let it go
    bool isNothingWaiting = false; ///< the user asked, and the module found nothing to send
    bool isCancelled = false;
};

/// What came of one song.
struct SongVerdict {
    Cause cause = Cause::kPublished;
    std::string label;
    std::string source;
    std::string sentence;
    int status = 0;                ///< of the service's answer; 0 when none came
    std::int64_t sent = 0;         ///< bytes; in an album each song's are the album's
    std::vector<Detail> missing{}; ///< what its editor shows empty
};

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

/// Whether the service could not be reached at all.
bool isAboutServer(const Problem& problem);
Cause causeOfServer(const Problem& problem);
std::string wordsOfServer(const Problem& problem);

/// Its own words, or the status of the answer; without a full stop.
std::string reasonOf(const Problem& problem);

} // namespace xbr::host
