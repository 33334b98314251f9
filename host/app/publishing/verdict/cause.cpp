#include "host/app/publishing/verdict/cause.h"

#include "host/app/publishing/verdict/words.h"

namespace xbr::host {

namespace {

constexpr const char* kSameAgain = QT_TRANSLATE_NOOP("Words", "Run the same command again.");
constexpr const char* kTheRest = QT_TRANSLATE_NOOP(
    "Words", "Run the same command with the songs that are not published to send the rest.");
constexpr const char* kUnlock = QT_TRANSLATE_NOOP("Words", "Unlock it, then run the same command again.");
constexpr const char* kLater = QT_TRANSLATE_NOOP("Words", "Try again later.");

/// In the order of the causes.
constexpr CauseRow kCauses[] = {
    {"published", ExitCode::kDone, NoticeKind::kDone, nullptr},
    {"signed-in", ExitCode::kDone, NoticeKind::kDone, nullptr},
    {"partly", ExitCode::kNotAllDone, NoticeKind::kWarning, kTheRest},
    {"missing-details", ExitCode::kInformationMissing, NoticeKind::kWarning, nullptr},
    {"unknown-genre", ExitCode::kInformationMissing, NoticeKind::kWarning,
     QT_TRANSLATE_NOOP("Words", "Choose one with --genre.")},
    {"refused-missing", ExitCode::kInformationMissing, NoticeKind::kWarning, nullptr},
    {"same-file", ExitCode::kUsage, NoticeKind::kError, QT_TRANSLATE_NOOP("Words", "Name it once.")},
    {"same-name", ExitCode::kFileProblem, NoticeKind::kError,
     QT_TRANSLATE_NOOP("Words", "Rename one of them.")},
    {"unreadable", ExitCode::kFileProblem, NoticeKind::kError,
     QT_TRANSLATE_NOOP("Words", "--skip-unreadable leaves it out.")},
    {"gone", ExitCode::kNotAllDone, NoticeKind::kError,
     QT_TRANSLATE_NOOP("Words", "Put it back, then run the same command again.")},
    {"changed", ExitCode::kNotAllDone, NoticeKind::kError, kSameAgain},
    {"disk-full", ExitCode::kNotAllDone, NoticeKind::kError,
     QT_TRANSLATE_NOOP("Words", "Make room, or set TMPDIR to another folder.")},
    {"no-folder", ExitCode::kNotAllDone, NoticeKind::kError,
     QT_TRANSLATE_NOOP("Words", "Set TMPDIR to another folder.")},
    {"not-prepared", ExitCode::kNotAllDone, NoticeKind::kError, nullptr},
    {"two-numbers", ExitCode::kDone, NoticeKind::kWarning,
     QT_TRANSLATE_NOOP("Words", "--track-number sets it.")},
    {"published-before", ExitCode::kPublishedBefore, NoticeKind::kWarning,
     QT_TRANSLATE_NOOP("Words", "--again sends them again.")},
    {"nothing-waits", ExitCode::kNotAllDone, NoticeKind::kInfo, nullptr},
    {"stopped-before", ExitCode::kInterrupted, NoticeKind::kInfo, nullptr},
    {"stopped", ExitCode::kInterrupted, NoticeKind::kInfo, kTheRest},
    {"stopped-unsure", ExitCode::kInterrupted, NoticeKind::kWarning,
     QT_TRANSLATE_NOOP("Words", "Look at your account page before you send it again.")},
    {"lost-unsure", ExitCode::kNotAllDone, NoticeKind::kWarning,
     QT_TRANSLATE_NOOP("Words", "Look at your account page before you send it again.")},
    {"refused", ExitCode::kNotAllDone, NoticeKind::kError, nullptr},
    {"too-large", ExitCode::kNotAllDone, NoticeKind::kError, nullptr},
    {"service-fault", ExitCode::kNotAllDone, NoticeKind::kError, kLater},
    {"too-many", ExitCode::kNotAllDone, NoticeKind::kError, kLater},
    {"lost", ExitCode::kNotAllDone, NoticeKind::kError, kSameAgain},
    {"untrusted", ExitCode::kUnreachable, NoticeKind::kError,
     QT_TRANSLATE_NOOP("Words", "Check ServerURL and this computer's clock.")},
    {"unreachable", ExitCode::kUnreachable, NoticeKind::kError, kLater},
    {"expired", ExitCode::kSignInExpired, NoticeKind::kWarning,
     QT_TRANSLATE_NOOP("Words", "xbrhost sign-in renews it.")},
    {"not-signed-in", ExitCode::kNotSignedIn, NoticeKind::kError,
     QT_TRANSLATE_NOOP("Words", "xbrhost sign-in signs in.")},
    {"other-account", ExitCode::kNotSignedIn, NoticeKind::kError,
     QT_TRANSLATE_NOOP("Words", "xbrhost sign-out signs out.")},
    {"signed-out", ExitCode::kDone, NoticeKind::kInfo, nullptr},
    {"keyring-none", ExitCode::kKeyring, NoticeKind::kWarning, nullptr},
    {"keyring-locked", ExitCode::kKeyring, NoticeKind::kWarning, kUnlock},
    {"keyring-silent", ExitCode::kKeyring, NoticeKind::kWarning, kUnlock},
    {"not-set-up", ExitCode::kNotConfigured, NoticeKind::kError, nullptr},
    {"no-module", ExitCode::kModuleProblem, NoticeKind::kError,
     QT_TRANSLATE_NOOP("Words", "--module names one.")},
};

} // namespace

const CauseRow& rowOf(Cause cause) {
    return kCauses[static_cast<std::size_t>(cause)];
}

Cause causeOf(const Finding& finding) {
    switch (finding.kind) {
    case Finding::Kind::kUnknownGenre:
        return Cause::kUnknownGenre;
    case Finding::Kind::kSameFile:
        return Cause::kSameFile;
    case Finding::Kind::kUnreadable:
        return finding.problem.fault == Fault::kModule ? Cause::kNoModule : Cause::kUnreadable;
    case Finding::Kind::kSameName:
        return Cause::kSameName;
    case Finding::Kind::kTwoNumbers:
        return Cause::kTwoNumbers;
    case Finding::Kind::kPublished:
        return Cause::kPublishedBefore;
    default:
        return Cause::kMissingDetails;
    }
}

bool isAboutServer(const Problem& problem) {
    return problem.fault == Fault::kNoServer || problem.fault == Fault::kUntrusted;
}

Cause causeOfServer(const Problem& problem) {
    return problem.fault == Fault::kUntrusted ? Cause::kUntrusted : Cause::kUnreachable;
}

} // namespace xbr::host
