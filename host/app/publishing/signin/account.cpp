#include "host/app/publishing/signin/account.h"

#include "host/app/publishing/verdict/words.h"

#include <algorithm>
#include <iterator>

namespace xbr::host {

namespace {

/// What the keyring's answers mean to somebody who signs in, asks, or signs out.
struct KeyringRow {
    StoreResult result;
    Cause cause;
    const char* notKept;
    const char* notFound;
    const char* notRemoved;
};

constexpr KeyringRow kKeyring[] = {
    {StoreResult::kNoStore, Cause::kKeyringNone,
     QT_TRANSLATE_NOOP("Words", "Signed in as %1, until the program ends: this computer has no keyring."),
     QT_TRANSLATE_NOOP("Words", "Not signed in: this computer has no keyring."),
     QT_TRANSLATE_NOOP("Words", "No keyring can be reached from here: nothing was removed.")},
    {StoreResult::kLocked, Cause::kKeyringLocked,
     QT_TRANSLATE_NOOP("Words", "Signed in as %1, until the program ends: the keyring was not unlocked."),
     QT_TRANSLATE_NOOP("Words", "The keyring was not unlocked: the stored sign-in cannot be read."),
     QT_TRANSLATE_NOOP("Words", "The keyring was not unlocked: the stored sign-in may still be there.")},
    {StoreResult::kSilent, Cause::kKeyringSilent,
     QT_TRANSLATE_NOOP("Words", "Signed in as %1, until the program ends: the keyring does not answer."),
     QT_TRANSLATE_NOOP("Words", "The keyring does not answer: the stored sign-in cannot be read."),
     QT_TRANSLATE_NOOP("Words", "The keyring does not answer: the stored sign-in may still be there.")},
};

/// Null when the keyring did what it was asked for.
const KeyringRow* rowOf(StoreResult result) {
    const auto* row = std::find_if(std::begin(kKeyring), std::end(kKeyring),
                                   [result](const KeyringRow& each) { return each.result == result; });
    return row == std::end(kKeyring) ? nullptr : row;
}

std::string shown(const char* text) {
    return say(Words::tr(text));
}

Verdict expired() {
    return verdictOf(Cause::kExpired,
                     say(Words::tr("The service does not accept the stored sign-in any more.")));
}

Verdict otherAccount(const SignInFacts& facts) {
    return verdictOf(Cause::kOtherAccount,
                     facts.account.empty()
                         ? say(Words::tr("The service does not say who is signed in; it may not be %1."),
                               facts.wantedAccount)
                         : say(Words::tr("Signed in as %1, not as %2."), facts.account, facts.wantedAccount));
}

/// Signed in; the songs may go.
Verdict signedIn(const SignInFacts& facts) {
    if (facts.account.empty()) {
        return verdictOf(Cause::kSignedIn, say(Words::tr("Signed in.")));
    }
    const KeyringRow* failed = facts.kept ? rowOf(*facts.kept) : nullptr;
    if (!failed) {
        return verdictOf(Cause::kSignedIn, say(Words::tr("Signed in as %1."), facts.account));
    }
    Verdict verdict = verdictOf(failed->cause, say(Words::tr(failed->notKept), facts.account));
    verdict.code = ExitCode::kDone;
    verdict.next.clear();
    return verdict;
}

Verdict judgeAuthorized(const SignInFacts& facts) {
    if (facts.problem.fault == Fault::kSignInRefused) {
        return expired();
    }
    if (facts.settings.wasAsked && !facts.settings.isComplete()) {
        return verdictOf(Cause::kNotSetUp, wordsOf(facts.settings));
    }
    if (isAboutServer(facts.problem) && facts.isForUpload) {
        return verdictOf(causeOfServer(facts.problem), wordsOfServer(facts.problem));
    }
    if (facts.problem && !facts.kept && !facts.isForUpload) { // somebody wants to know, and nobody says
        return verdictOf(causeOfServer(facts.problem),
                         say(Words::tr("A sign-in is stored, but the service could not be asked: %1."),
                             reasonOf(facts.problem)));
    }
    const bool isWanted = facts.wantedAccount.empty() || facts.wantedAccount == facts.account;
    return isWanted ? signedIn(facts) : otherAccount(facts);
}

Verdict notSignedIn(const SignInFacts& facts) {
    const std::string words = quoted(facts.problem.words);
    if (facts.isAnswerUnusable) {
        return verdictOf(Cause::kNotSignedIn,
                         say(Words::tr("Not signed in: the service sent an answer that cannot be used.")));
    }
    if (!facts.problem) {
        return verdictOf(Cause::kNotSignedIn, facts.wasUserAsked
                                                  ? say(Words::tr("Not signed in: the sign-in was given up."))
                                                  : say(Words::tr("Not signed in.")));
    }
    return verdictOf(Cause::kNotSignedIn,
                     words.empty() ? say(Words::tr("Not signed in: the service did not accept it."))
                                   : say(Words::tr("Not signed in: the service refused it: %1."), words));
}

Verdict judgeSignIn(const SignInFacts& facts) {
    if (facts.isCancelled) {
        return verdictOf(Cause::kStoppedBefore, nothingSent(say(Words::tr("Stopped."))));
    }
    if (facts.isAuthorized) {
        return judgeAuthorized(facts);
    }
    if (facts.settings.wasAsked && !facts.settings.isComplete()) {
        return verdictOf(Cause::kNotSetUp, wordsOf(facts.settings));
    }
    if (isAboutServer(facts.problem)) {
        return verdictOf(causeOfServer(facts.problem), wordsOfServer(facts.problem));
    }
    const KeyringRow* unread = facts.wasUserAsked ? nullptr : rowOf(facts.found);
    if (!unread) {
        return notSignedIn(facts);
    }
    Verdict verdict = verdictOf(unread->cause, shown(unread->notFound));
    if (unread->cause == Cause::kKeyringNone) { // then nobody is
        verdict.code = ExitCode::kNotSignedIn;
    }
    return verdict;
}

} // namespace

Verdict judge(const SignInFacts& facts) {
    Verdict verdict = judgeSignIn(facts);
    if (facts.isForUpload && !verdict.isGood() && !facts.isCancelled && verdict.cause != Cause::kNotSetUp) {
        verdict.sentence = nothingSent(verdict.sentence);
    }
    return verdict;
}

std::string problemOfLinkBack(const std::string& link, const ConfigurationReport& settings) {
    const auto schemeOf = [](const std::string& url) { return url.substr(0, url.find(':')); };
    if (schemeOf(link) != schemeOf(settings.callbackUrl)) {
        return say(Words::tr("This is not a link back: it begins with “%1:”."), quoted(schemeOf(link)));
    }
    const std::string address = settings.callbackUrl.substr(0, settings.callbackUrl.find('?'));
    return link.starts_with(address)
               ? std::string()
               : say(Words::tr("This link back belongs to another sign-in. Open the address again."));
}

Verdict judgeSignOut(StoreResult removed, bool wasKept) {
    const KeyringRow* failed = rowOf(removed);
    if (failed && (wasKept || removed != StoreResult::kNoStore)) {
        Verdict verdict = verdictOf(failed->cause, shown(failed->notRemoved));
        verdict.kind = NoticeKind::kError;
        return verdict;
    }
    return verdictOf(Cause::kSignedOut, removed == StoreResult::kNothing && wasKept
                                            ? shown(QT_TRANSLATE_NOOP("Words", "Nobody was signed in."))
                                            : shown(QT_TRANSLATE_NOOP("Words", "Signed out.")));
}

} // namespace xbr::host
