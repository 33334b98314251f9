#pragma once

#include "host/app/process/exitcodes.h"
#include "host/app/publishing/plan.h"
#include "host/app/publishing/verdict/notice.h"
#include "host/base/problem.h"

#include <cstdint>

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

/// What a cause means for the program and its user.
struct CauseRow {
    const char* name; ///< for programs: "missing-details"
    ExitCode code;
    NoticeKind kind;
    const char* next; ///< what can be done about it, on the command line, for `Words::tr`; null for nothing
};

const CauseRow& rowOf(Cause cause);

inline const char* nameOf(Cause cause) {
    return rowOf(cause).name;
}

Cause causeOf(const Finding& finding);

/// Whether the service could not be reached at all.
bool isAboutServer(const Problem& problem);
Cause causeOfServer(const Problem& problem);

} // namespace xbr::host
