// What became of an upload, from what is known of it: one table.

#include "host/app/publishing/signin/account.h"
#include "host/app/publishing/verdict/words.h"

#include <gtest/gtest.h>

#include <functional>

namespace xbr::host {
namespace {

TrackFact track(TrackState state) {
    TrackFact fact;
    fact.label = "Harbour";
    fact.source = "/m/harbour.wav";
    fact.state = state;
    return fact;
}

TrackFact answered(TrackState state, int status, const std::string& said = {}) {
    TrackFact fact = track(state);
    fact.wasSent = true;
    fact.sent = fact.total = 94'100'000;
    fact.status = status;
    fact.said = said;
    return fact;
}

TrackFact broken(std::int64_t sent, Fault fault) {
    TrackFact fact = answered(TrackState::kFailed, 0);
    fact.sent = sent;
    fact.problem = {fault, "https://service.example", 0, "Connection refused", {}, {}};
    return fact;
}

TrackFact lacking(TrackFact fact, std::vector<Detail> missing) {
    fact.missing = std::move(missing);
    return fact;
}

const TrackFact kTaken = answered(TrackState::kDone, 201);

UploadFacts of(std::vector<TrackFact> tracks) {
    UploadFacts facts;
    facts.tracks = std::move(tracks);
    return facts;
}

UploadFacts album(std::vector<TrackFact> tracks) {
    UploadFacts facts = of(std::move(tracks));
    facts.isAlbum = true;
    facts.albumTitle = "Night Drive";
    return facts;
}

UploadFacts cancelled(UploadFacts facts) {
    facts.isCancelled = true;
    return facts;
}

UploadFacts without(UploadFacts facts, Fault fault, const std::string& path, const std::string& words = {}) {
    facts.files.push_back({fault, path, 0, words, {}, {}});
    facts.folder = "/tmp";
    facts.neededSpace = 200'000'000;
    facts.freeSpace = 1'500'000;
    return facts;
}

struct VerdictCase {
    UploadFacts facts;
    Cause cause;
    int code;
    const char* sentence;
};

TEST(Verdict, OfAnUpload) {
    using enum TrackState;
    const TrackFact waiting = track(kNone);
    const VerdictCase cases[] = {
        {of({kTaken}), Cause::kPublished, 0, "Published “Harbour”."},
        {of({kTaken, kTaken}), Cause::kPublished, 0, "Published 2 songs as singles."},
        {album({kTaken, kTaken}), Cause::kPublished, 0, "Published the album “Night Drive” with 2 songs."},
        {of({kTaken, answered(kFailed, 500)}), Cause::kPartly, 1,
         "Published 1 of 2 songs. The service has a fault (500). “Harbour” was not taken; nothing is wrong "
         "with the song."},
        {of({answered(kFailed, 422, "This title already exists")}), Cause::kRefused, 1,
         "The service refused “Harbour” (422): This title already exists"},
        {of({answered(kFailed, 404)}), Cause::kRefused, 1,
         "The service refused “Harbour” (404) and gave no reason."},
        {of({answered(kFailed, 413)}), Cause::kTooLarge, 1,
         "The service refused “Harbour” because it is too large (94.1 MB)."},
        {of({answered(kFailed, 429)}), Cause::kTooMany, 1,
         "The service asks to wait a while before the next upload. “Harbour” was not taken."},
        {album({answered(kFailed, 503)}), Cause::kServiceFault, 1,
         "The service has a fault (503). The album “Night Drive” was not taken; nothing is wrong with it."},
        {of({answered(kFailed, 401)}), Cause::kExpired, 10,
         "The service does not accept the stored sign-in any more. Nothing was sent."},
        {of({lacking(answered(kMissingInformation, 422), {Detail::kSongArtist})}), Cause::kRefusedMissing, 7,
         "The service refused “Harbour” because details are missing: song artist."},
        {album({answered(kNone, 422, "did not contain a required property: 'isrc'")}), Cause::kRefusedMissing,
         7,
         "The service refused the album “Night Drive” because details are missing, but none is empty here: "
         "did not contain a required property: 'isrc'"},
        {of({broken(0, Fault::kNoServer)}), Cause::kUnreachable, 6,
         "The service at https://service.example cannot be reached: Connection refused. Nothing was sent."},
        {of({broken(0, Fault::kUntrusted)}), Cause::kUntrusted, 6,
         "https://service.example could not prove its identity: Connection refused. Nothing was sent."},
        {of({broken(38'600'000, Fault::kConnectionLost)}), Cause::kLost, 1,
         "The connection broke after 38.6 of 94.1 MB. “Harbour” did not arrive."},
        {of({broken(94'100'000, Fault::kConnectionLost)}), Cause::kLostUnsure, 1,
         "The connection broke after all of “Harbour” was sent, before the service answered. It may be "
         "published."},
        {cancelled(of({broken(38'600'000, Fault::kCancelled), waiting})), Cause::kStopped, 130,
         "Stopped. 0 of 2 songs are published. “Harbour” was stopped at 38.6 of 94.1 MB and did not arrive."},
        {cancelled(of({broken(94'100'000, Fault::kCancelled)})), Cause::kStoppedUnsure, 130,
         "Stopped after all of “Harbour” was sent, before the service answered. It may be published."},
        {cancelled(of({waiting})), Cause::kStoppedBefore, 130, "Stopped. Nothing was sent."},
        {cancelled(of({kTaken, waiting})), Cause::kStopped, 130,
         "Stopped. 1 of 2 songs are published. “Harbour” was not sent."},
        {without(of({waiting}), Fault::kMissing, "/m/harbour.wav"), Cause::kGone, 1,
         "“harbour.wav” is no longer there. “Harbour” was not sent."},
        {without(of({kTaken}), Fault::kChanged, "/m/harbour.wav"), Cause::kChanged, 1,
         "“harbour.wav” changed while it was copied. “Harbour” was not sent."},
        {without(album({kTaken, kTaken}), Fault::kMissing, "/m/harbour.wav"), Cause::kGone, 1,
         "“harbour.wav” is no longer there. The album “Night Drive” is not complete."},
        {without(of({waiting}), Fault::kDiskFull, "/tmp/payload.zip"), Cause::kDiskFull, 1,
         "There is not enough room in “/tmp”: 200 MB are needed, 1.50 MB are free. “Harbour” was not sent."},
        {without(of({waiting}), Fault::kNotWritable, "/tmp/payload.zip", "Permission denied"),
         Cause::kNotPrepared, 1, "“Harbour” could not be prepared: Permission denied. It was not sent."},
        {of({waiting}), Cause::kNotPrepared, 1, "“Harbour” could not be prepared. It was not sent."},
        {of({answered(kFailed, 500), answered(kFailed, 401)}), Cause::kServiceFault, 1, nullptr},
    };
    for (const VerdictCase& each : cases) {
        const Verdict verdict = judge(each.facts);
        EXPECT_EQ(verdict.cause, each.cause) << nameOf(verdict.cause);
        EXPECT_EQ(static_cast<int>(verdict.code), each.code) << verdict.sentence;
        if (each.sentence) {
            EXPECT_EQ(verdict.sentence, each.sentence);
        }
        EXPECT_EQ(verdict.songs.size(), each.facts.tracks.size());
    }
}

TEST(Verdict, OfASignIn) {
    ConfigurationReport complete;
    complete.wasAsked = true;
    complete.result = ConfigurationResult::kRead;
    ConfigurationReport missing = complete;
    missing.title = "Brindlex Client";
    missing.path = "/home/services.ini";
    missing.id = "brindlex";
    missing.missingKeys = {"ServerURL", "ConsumerKey"};
    const Problem refused{Fault::kSignInRefused, "https://service.example", 401, "invalid\ngrant", {}, {}};
    const Problem nobody{Fault::kNoServer, "https://service.example", 0, "Connection refused", {}, {}};
    struct SignInCase {
        std::function<void(SignInFacts&)>
            change; ///< of somebody who was sent to the browser and did nothing there
        Cause cause;
        int code;
        const char* sentence;
    };
    const auto signIn = [](SignInFacts& facts) {
        facts.isAuthorized = true;
        facts.account = "Mara";
    };
    const auto keep = [&signIn](StoreResult kept) {
        return [kept, &signIn](SignInFacts& facts) {
            signIn(facts);
            facts.kept = kept;
        };
    };
    const auto status = [](StoreResult found) {
        return [found](SignInFacts& facts) {
            facts.wasUserAsked = false;
            facts.found = found;
        };
    };
    const SignInCase cases[] = {
        {signIn, Cause::kSignedIn, 0, "Signed in as Mara."},
        {[](SignInFacts& facts) { facts.isAuthorized = true; }, Cause::kSignedIn, 0, "Signed in."},
        {[&](SignInFacts& facts) {
             signIn(facts);
             facts.problem = refused;
         },
         Cause::kExpired, 10, "The service does not accept the stored sign-in any more."},
        {[&](SignInFacts& facts) {
             signIn(facts);
             facts.problem = nobody;
         },
         Cause::kUnreachable, 6,
         "A sign-in is stored, but the service could not be asked: Connection refused."},
        {[&](SignInFacts& facts) {
             signIn(facts);
             facts.problem = {Fault::kServerFault, {}, 503, "down", {}, {}};
         },
         Cause::kUnreachable, 6, "A sign-in is stored, but the service could not be asked: it answered 503."},
        {[&](SignInFacts& facts) {
             signIn(facts);
             facts.problem = nobody;
             facts.isForUpload = true;
         },
         Cause::kUnreachable, 6,
         "The service at https://service.example cannot be reached: Connection refused. Nothing was sent."},
        {[&](SignInFacts& facts) {
             signIn(facts);
             facts.isForUpload = true;
             facts.wantedAccount = "Ann";
         },
         Cause::kOtherAccount, 5, "Signed in as Mara, not as Ann. Nothing was sent."},
        {[&](SignInFacts& facts) {
             signIn(facts);
             facts.wantedAccount = "Mara";
         },
         Cause::kSignedIn, 0, "Signed in as Mara."},
        {[](SignInFacts& facts) {
             facts.isAuthorized = true;
             facts.wantedAccount = "Ann";
         },
         Cause::kOtherAccount, 5, "The service does not say who is signed in; it may not be Ann."},
        {keep(StoreResult::kDone), Cause::kSignedIn, 0, "Signed in as Mara."},
        {keep(StoreResult::kNoStore), Cause::kKeyringNone, 0,
         "Signed in as Mara, until the program ends: this computer has no keyring."},
        {keep(StoreResult::kLocked), Cause::kKeyringLocked, 0,
         "Signed in as Mara, until the program ends: the keyring was not unlocked."},
        {keep(StoreResult::kSilent), Cause::kKeyringSilent, 0,
         "Signed in as Mara, until the program ends: the keyring does not answer."},
        {[&](SignInFacts& facts) { facts.settings = missing; }, Cause::kNotSetUp, 9,
         "Brindlex Client is not set up: ServerURL, ConsumerKey is missing in “/home/services.ini”, section "
         "[brindlex]."},
        {[&](SignInFacts& facts) { facts.problem = nobody; }, Cause::kUnreachable, 6,
         "The service at https://service.example cannot be reached: Connection refused."},
        {[&](SignInFacts& facts) {
             facts.problem = refused;
             facts.problem.fault = Fault::kRefused;
         },
         Cause::kNotSignedIn, 5, "Not signed in: the service refused it: invalid grant."},
        {[](SignInFacts& facts) { facts.isAnswerUnusable = true; }, Cause::kNotSignedIn, 5,
         "Not signed in: the service sent an answer that cannot be used."},
        {[](SignInFacts&) {}, Cause::kNotSignedIn, 5, "Not signed in: the sign-in was given up."},
        {status(StoreResult::kNothing), Cause::kNotSignedIn, 5, "Not signed in."},
        {status(StoreResult::kNoStore), Cause::kKeyringNone, 5,
         "Not signed in: this computer has no keyring."},
        {status(StoreResult::kLocked), Cause::kKeyringLocked, 12,
         "The keyring was not unlocked: the stored sign-in cannot be read."},
        {status(StoreResult::kSilent), Cause::kKeyringSilent, 12,
         "The keyring does not answer: the stored sign-in cannot be read."},
        {[](SignInFacts& facts) { facts.isCancelled = facts.isForUpload = true; }, Cause::kStoppedBefore, 130,
         "Stopped. Nothing was sent."},
    };
    for (const SignInCase& each : cases) {
        SignInFacts facts;
        facts.settings = complete;
        facts.wasUserAsked = true;
        each.change(facts);
        const Verdict verdict = judge(facts);
        EXPECT_EQ(verdict.cause, each.cause) << nameOf(verdict.cause);
        EXPECT_EQ(static_cast<int>(verdict.code), each.code) << verdict.sentence;
        EXPECT_EQ(verdict.sentence, each.sentence);
    }
}

TEST(Verdict, OfASignOutClaimsNoMoreThanWasDone) {
    const struct {
        StoreResult removed;
        bool wasKept;
        int code;
        const char* sentence;
    } cases[] = {
        {StoreResult::kDone, true, 0, "Signed out."},
        {StoreResult::kNothing, true, 0, "Nobody was signed in."},
        {StoreResult::kNothing, false, 0, "Signed out."},
        {StoreResult::kNoStore, false, 0, "Signed out."},
        {StoreResult::kNoStore, true, 12, "No keyring can be reached from here: nothing was removed."},
        {StoreResult::kLocked, false, 12,
         "The keyring was not unlocked: the stored sign-in may still be there."},
        {StoreResult::kSilent, true, 12,
         "The keyring does not answer: the stored sign-in may still be there."},
    };
    for (const auto& each : cases) {
        const Verdict verdict = judgeSignOut(each.removed, each.wasKept);
        EXPECT_EQ(static_cast<int>(verdict.code), each.code);
        EXPECT_EQ(verdict.sentence, each.sentence);
    }
}

TEST(Words, AreForPeople) {
    const std::pair<std::int64_t, const char*> sizes[] = {
        {0, "0 B"}, {999, "999 B"}, {1000, "1.00 kB"}, {9'410'000, "9.41 MB"}, {1'060'000'000, "1.06 GB"}};
    for (const auto& [bytes, words] : sizes) {
        EXPECT_EQ(wordsOfSize(bytes), words);
    }
    EXPECT_EQ(wordsOfSizes(38'600'000, 1'060'000'000).first, "0.04") << "both in one unit";
    EXPECT_EQ(quoted("a\n\tb\x1B[2J"), "a b [2J");
    EXPECT_EQ(quoted(std::string(250, 'x')), std::string(199, 'x') + "…");
    EXPECT_EQ(say("%1 and %2", std::string("%2"), std::string("b")), "%2 and b");
}

} // namespace
} // namespace xbr::host
