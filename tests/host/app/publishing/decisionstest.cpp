// What is decided about songs, uploads and sign-ins from what is known of them: tables.

#include "host/app/publishing/plan.h"
#include "host/app/publishing/signin/account.h"
#include "host/app/publishing/upload/progress.h"
#include "host/app/publishing/verdict/verdict.h"
#include "host/app/publishing/verdict/words.h"

#include <gmock/gmock.h>

#include <map>

namespace xbr::host {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

/// The same with another value in one place.
template <class T, class Base, class Value>
T with(T all, Value Base::*place, std::type_identity_t<Value> value) {
    all.*place = std::move(value);
    return all;
}

/// "cause code: sentence (warning)", without what is not there.
std::string told(const Verdict& verdict) {
    std::string text = nameOf(verdict.cause) + (" " + std::to_string(static_cast<int>(verdict.code)));
    text += (verdict.sentence.empty() ? "" : ": ") + verdict.sentence;
    for (const std::string& warning : verdict.warnings) {
        text += " (" + warning + ")";
    }
    return text;
}

// What is handed over

/// A song as its file would tell of it, with some tags unlike the usual ones.
SongFile song(const std::string& path, int number = 1, std::map<std::string, std::string> tags = {}) {
    tags.merge(std::map<std::string, std::string>{{"Title", "Tide"},
                                                  {"Artist", "Ann"},
                                                  {"Genre", "Rock"},
                                                  {"Album", "Lights"},
                                                  {"AlbumArtist", "Duo"}});
    SongFile song;
    song.path = song.identity = path;
    song.kind = extensionOf(path) == "flac" ? "FLAC" : (extensionOf(path) == "mp3" ? "MP3" : "WAV");
    for (const auto& [name, text] : tags) {
        song.tags.texts.emplace_back("Media:" + name, text);
    }
    song.tags.trackIndex = number;
    return song;
}

SongFile untagged(const std::string& path) {
    return with(song(path), &SongFile::tags, {});
}

SongFile bad(const std::string& path, Fault fault) {
    return with(song(path), &SongFile::problem, {fault, path, 0, {}, "2:10", "4:02"});
}

SongFile published(const std::string& path) {
    return with(song(path, 2), &SongFile::published, 1);
}

struct Given : ReleaseWish {
    std::vector<SongFile> files;
};

Given release(ReleaseMode mode, std::vector<SongFile> files) {
    Given given{{}, std::move(files)};
    given.mode = mode;
    given.songs.resize(given.files.size());
    return given;
}

Given singles(std::vector<SongFile> files) {
    return release(ReleaseMode::kSingles, std::move(files));
}

Given album(std::vector<SongFile> files) {
    return release(ReleaseMode::kAlbum, std::move(files));
}

Plan planOf(const Given& given) {
    const auto wantedInstead = [](const std::string& extension) {
        return extension == "wav" || extension == "flac" || extension == "mp3" ? "" : "wav";
    };
    return makePlan(
        given, given.files,
        {Genres({"Ambient", "Classical", "High Classical", "Hip Hop/Rap", "Rock"}), wantedInstead, false});
}

/// "title/artist/genre: number title/artist in file, …" of each release; a star for what is rendered.
std::string described(const Plan& plan) {
    std::string text;
    for (const PlannedRelease& release : plan.releases) {
        text +=
            (text.empty() ? "" : " | ") + release.title + "/" + release.artist + "/" + release.genre + ":";
        for (const PlannedSong& song : release.songs) {
            text += (text.back() == ':' ? " " : ", ") + std::to_string(song.number) + " " + song.title + "/" +
                    song.artist + " in " + song.fileName + (song.isRendered ? "*" : "");
        }
    }
    return text;
}

TEST(Plan, followsFromSongsAndWishes) {
    const struct {
        const char* what;
        Given given;
        const char* plan;    ///< null: it does not matter
        const char* verdict; ///< as it begins
    } cases[] = {
        {"tags", singles({song("/m/a.wav", 7)}), "Tide/Ann/Rock: 1 Tide/Ann in a.wav", "published 0"},
        {"an album takes what its first song says",
         album({song("/m/a.wav", 7), song("/m/b.mp3", 2, {{"Album", "Other"}})}),
         "Lights/Duo/Rock: 7 Tide/Ann in a.wav, 2 Tide/Ann in b.mp3", "published 0"},
        {"what the user says wins", with(album({song("/m/a.wav")}), &ReleaseWish::genre, "aMBIENT"),
         "Lights/Duo/Ambient: 1 Tide/Ann in a.wav", "published 0"},
        {"rendered songs keep their names, unlike all others",
         album({song("/m/a.wav"), song("/m/a.aiff", 2), song("/m/a.ogg", 3)}),
         "Lights/Duo/Rock: 1 Tide/Ann in a.wav, 2 Tide/Ann in a (2).wav*, 3 Tide/Ann in a (3).wav*",
         "published 0"},
        {"names without tags", with(singles({untagged("/m/01 Harbour.wav")}), &ReleaseWish::genre, "Rock"),
         "Harbour//Rock: 1 Harbour/ in 01 Harbour.wav",
         "missing-details 7: “Harbour” lacks: song artist. Nothing was sent."},
        {"two files of one name in an album", album({song("/m/mix.wav"), song("/n/mix.wav", 2)}), nullptr,
         "same-name 3: “/m/mix.wav” and “/n/mix.wav” have the same file name; in an album each song needs "
         "its "
         "own. Nothing was sent."},
        {"two files of one name as singles", singles({song("/m/mix.wav"), song("/n/mix.wav")}), nullptr,
         "published 0"},
        {"two songs of one number", album({song("/m/a.wav", 3), song("/m/b.wav", 3), song("/m/c.wav", 3)}),
         nullptr, "published 0 (“Tide” and “Tide” both have the number 3.)"},
        {"one file twice",
         singles({song("/m/a.wav"), with(song("/n/b.wav"), &SongFile::identity, "/m/a.wav")}), nullptr,
         "same-file 2: “b.wav” is there twice. Nothing was sent."},
        {"control characters in a name", singles({song("/m/a\x01.wav")}), nullptr,
         "unreadable 3: “a\x01.wav” cannot be published: its name holds control characters."},
        {"a name that is not UTF-8", singles({song("/m/caf\xE9.aiff")}), nullptr, "unreadable 3"},
        {"another kind than the name says", singles({with(song("/m/liar.mp3"), &SongFile::kind, "WAV")}),
         nullptr, "unreadable 3: “liar.mp3” cannot be published: it is WAV, not MP3 as its name says."},
        {"missing", singles({bad("/m/a.wav", Fault::kMissing)}), nullptr,
         "unreadable 3: “a.wav” cannot be published: it is not there. Nothing was sent."},
        {"cut off", singles({song("/m/a.wav"), bad("/m/b.flac", Fault::kCutShort)}), nullptr,
         "unreadable 3: “b.flac” cannot be published: it is cut off: 2:10 of 4:02. Nothing was sent."},
        {"left out when the user says so",
         with(singles({song("/m/a.wav"), bad("/m/b.flac", Fault::kCutShort)}), &ReleaseWish::skipsUnreadable,
              true),
         "Tide/Ann/Rock: 1 Tide/Ann in a.wav", "published 0"},
        {"not when nothing would remain",
         with(singles({bad("/m/b.flac", Fault::kCutShort)}), &ReleaseWish::skipsUnreadable, true), "",
         "unreadable 3"},
        {"published before, the others go", singles({published("/m/a.wav"), song("/m/b.flac")}),
         "Tide/Ann/Rock: 1 Tide/Ann in b.flac", "published 0"},
        {"published before, and nothing else", singles({published("/m/a.wav"), published("/m/b.flac")}), "",
         "published-before 11: 2 of 2 songs were published from this computer before. Nothing was sent."},
        {"an album of which a song was published", album({song("/m/a.wav"), published("/m/b.flac")}), nullptr,
         "published-before 11"},
        {"published before, and wanted again",
         with(album({song("/m/a.wav"), published("/m/b.flac")}), &ReleaseWish::sendsAgain, true), nullptr,
         "published 0"},
        {"a genre that is not known is not handed over",
         singles({song("/m/a.wav", 1, {{"Genre", "Romantic Classical"}})}), "Tide/Ann/: 1 Tide/Ann in a.wav",
         "unknown-genre 7: “Tide” has the genre “Romantic Classical”, which the service does not know. "
         "Nearest: Classical. Nothing was sent."},
        {"the number of an old tag", singles({song("/m/a.mp3", 1, {{"Genre", "(17)"}})}),
         "Tide/Ann/Rock: 1 Tide/Ann in a.mp3", "published 0"},
        {"a genre that the user made up", with(singles({song("/m/a.wav")}), &ReleaseWish::genre, "Rocl"),
         nullptr,
         "unknown-genre 2: The service does not know the genre “Rocl”. Nearest: Rock. Nothing was sent."},
        {"an album without a title", album({song("/m/a.wav", 1, {{"Album", ""}})}), nullptr,
         "missing-details 7: The album lacks: album title. Nothing was sent."},
        {"singles that lack something are left out when the user says so",
         with(singles({song("/m/a.wav"), untagged("/m/b.wav")}), &ReleaseWish::skipsIncomplete, true),
         "Tide/Ann/Rock: 1 Tide/Ann in a.wav", "published 0"},
        {"not when nothing would remain, either",
         with(singles({untagged("/m/b.wav")}), &ReleaseWish::skipsIncomplete, true), nullptr,
         "missing-details 7: “b” lacks: song artist, genre. Nothing was sent."},
    };
    for (const auto& each : cases) {
        const Plan plan = planOf(each.given);
        EXPECT_EQ(described(plan), each.plan ? each.plan : described(plan)) << each.what;
        EXPECT_THAT(told(judge(plan)), StartsWith(each.verdict)) << each.what;
        EXPECT_EQ(plan.canBeSent(), judge(plan).isGood()) << each.what;
    }
}

TEST(Plan, whatCanBeSettledInAPanelDoesNotStandInItsWay) {
    const auto panel = [](std::vector<SongFile> files) {
        return planOf(release(ReleaseMode::kPanel, std::move(files)));
    };
    EXPECT_FALSE(panel({song("/m/a.wav")}).isAlbum()) << "one song leaves the mode alone";
    for (const auto& songs : {std::vector{song("/m/mix.wav"), song("/n/mix.wav", 2)},
                              std::vector{untagged("/m/a.wav"), untagged("/m/b.wav")}}) {
        const Plan plan = panel(songs);
        EXPECT_TRUE(plan.isAlbum() && plan.canBeHandedOver() && !plan.canBeSent());
        EXPECT_FALSE(planOf(album(songs)).canBeHandedOver());
    }
    EXPECT_FALSE(panel({bad("/m/a.wav", Fault::kNotAudio)}).canBeHandedOver());
}

TEST(Plan, readsFileNames) {
    for (const std::string row :
         {"/m/01 Night Drive.wav → 1 Night Drive", "12 - Harbour.aiff → 12 Harbour", "3. Quay.wav → 3 Quay",
          "07_Low_Tide.wav → 7 Low_Tide", "7 Seconds.wav → 0 7 Seconds", "3AM.wav → 0 3AM",
          "1999.wav → 0 1999", "2001 Odyssey.wav → 0 2001 Odyssey", "00 Hidden.wav → 0 00 Hidden",
          "01.wav → 0 01", "Song.of.Songs.wav → 0 Song.of.Songs", "01 .wav → 0 01 ", ".wav → 0 .wav"}) {
        const std::string path = row.substr(0, row.find(" → "));
        const NameTags name = readFileName(path);
        EXPECT_EQ(path + " → " + std::to_string(name.number) + " " + name.title, row);
    }
}

TEST(Genres, areMatchedAsTagsWriteThem) {
    const Genres genres(
        {"Axé", "Classical", "Hip Hop/Rap", "Rock", "R&B/Soul", "Techno (Peak Time / Driving)"});
    for (const std::string row :
         {"rOCK → Rock", " Rock  → Rock", "(17) → Rock", "17 → Rock", "(32) → Classical", "32 → Classical",
          "(32)Rock → Rock", "(32)Fado → Classical", "AXÉ → Axé", "Polka → none", "(999) → none", " → none",
          "( → none", "-1 → none", "32a → none"}) {
        const std::string written = row.substr(0, row.find(" → "));
        EXPECT_EQ(written + " → " + genres.match(written).value_or("none"), row);
    }
    EXPECT_THAT(genres.near("technno"), ElementsAre("Techno (Peak Time / Driving)"));
    EXPECT_THAT(genres.near("Rocl"), ElementsAre("Rock"));
    EXPECT_THAT(genres.near("hip hop"), ElementsAre("Hip Hop/Rap"));
    EXPECT_THAT(genres.near("Quasimodo"), ElementsAre());
}

// What became of it

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

const Problem kNobody{Fault::kNoServer, "https://service.example", 0, "Connection refused", {}, {}};

TrackFact broken(std::int64_t sent, Fault fault) {
    TrackFact fact = with(answered(TrackState::kFailed, 0), &TrackFact::sent, sent);
    fact.problem = with(kNobody, &Problem::fault, fault);
    return fact;
}

UploadFacts of(std::vector<TrackFact> tracks) {
    return with(UploadFacts(), &UploadFacts::tracks, std::move(tracks));
}

UploadFacts albumOf(std::vector<TrackFact> tracks) {
    return with(with(of(std::move(tracks)), &UploadFacts::isAlbum, true), &UploadFacts::albumTitle, "Lights");
}

UploadFacts stopped(std::vector<TrackFact> tracks) {
    return with(of(std::move(tracks)), &UploadFacts::isCancelled, true);
}

UploadFacts without(UploadFacts facts, Fault fault, const std::string& path, const std::string& words = {}) {
    facts.files.push_back({fault, path, 0, words, {}, {}});
    facts.folder = "/tmp";
    facts.neededSpace = 200'000'000;
    facts.freeSpace = 1'500'000;
    return facts;
}

TEST(Verdict, ofAnUpload) {
    using enum TrackState;
    const TrackFact waiting = track(kNone);
    const TrackFact taken = answered(kDone, 201);
    const char* const song = "/m/harbour.wav";
    const std::pair<UploadFacts, const char*> cases[] = {
        {of({taken}), "published 0: Published “Harbour”."},
        {of({taken, taken}), "published 0: Published 2 songs as singles."},
        {albumOf({taken, taken}), "published 0: Published the album “Lights” with 2 songs."},
        {of({taken, answered(kFailed, 500)}), "partly 1: Published 1 of 2 songs. The service has a fault "
                                              "(500). “Harbour” was not taken; nothing is "
                                              "wrong with the song."},
        {of({answered(kFailed, 422, "This title already exists")}),
         "refused 1: The service refused “Harbour” (422): This title already exists"},
        {of({answered(kFailed, 404)}), "refused 1: The service refused “Harbour” (404) and gave no reason."},
        {of({answered(kFailed, 413)}),
         "too-large 1: The service refused “Harbour” because it is too large (94.1 MB)."},
        {of({answered(kFailed, 429)}),
         "too-many 1: The service asks to wait a while before the next upload. “Harbour” was not taken."},
        {albumOf({answered(kFailed, 503)}),
         "service-fault 1: The service has a fault (503). The album “Lights” was not taken; nothing is wrong "
         "with it."},
        {of({answered(kFailed, 401)}),
         "expired 10: The service does not accept the stored sign-in any more. Nothing was sent."},
        {of({with(answered(kMissingInformation, 422), &TrackFact::missing, {Detail::kSongArtist})}),
         "refused-missing 7: The service refused “Harbour” because details are missing: song artist."},
        {albumOf({answered(kNone, 422, "did not contain a required property: 'isrc'")}),
         "refused-missing 7: The service refused the album “Lights” because details are missing, but none is "
         "empty here: did not contain a required property: 'isrc'"},
        {of({broken(0, Fault::kNoServer)}), "unreachable 6: The service at https://service.example cannot be "
                                            "reached: Connection refused. Nothing "
                                            "was sent."},
        {of({broken(0, Fault::kUntrusted)}),
         "untrusted 6: https://service.example could not prove its identity: Connection refused. Nothing was "
         "sent."},
        {of({broken(38'600'000, Fault::kConnectionLost)}),
         "lost 1: The connection broke after 38.6 of 94.1 MB. “Harbour” did not arrive."},
        {of({broken(94'100'000, Fault::kConnectionLost)}),
         "lost-unsure 1: The connection broke after all of “Harbour” was sent, before the service answered. "
         "It "
         "may be published."},
        {stopped({broken(38'600'000, Fault::kCancelled), waiting}),
         "stopped 130: Stopped. 0 of 2 songs are published. “Harbour” was stopped at 38.6 of 94.1 MB and did "
         "not arrive."},
        {stopped({broken(94'100'000, Fault::kCancelled)}),
         "stopped-unsure 130: Stopped after all of “Harbour” was sent, before the service answered. It may "
         "be "
         "published."},
        {stopped({waiting}), "stopped-before 130: Stopped. Nothing was sent."},
        {stopped({taken, waiting}),
         "stopped 130: Stopped. 1 of 2 songs are published. “Harbour” was not sent."},
        {without(of({waiting}), Fault::kMissing, song),
         "gone 1: “harbour.wav” is no longer there. “Harbour” was not sent."},
        {without(of({taken}), Fault::kChanged, song),
         "changed 1: “harbour.wav” changed while it was copied. “Harbour” was not sent."},
        {without(albumOf({taken, taken}), Fault::kMissing, song),
         "gone 1: “harbour.wav” is no longer there. The album “Lights” is not complete."},
        {without(of({waiting}), Fault::kDiskFull, "/tmp/payload.zip"),
         "disk-full 1: There is not enough room in “/tmp”: 200 MB are needed, 1.50 MB are free. “Harbour” "
         "was "
         "not sent."},
        {without(of({waiting}), Fault::kNotWritable, "/tmp/payload.zip", "Permission denied"),
         "not-prepared 1: “Harbour” could not be prepared: Permission denied. It was not sent."},
        {of({waiting}), "not-prepared 1: “Harbour” could not be prepared. It was not sent."},
        {of({answered(kFailed, 500), answered(kFailed, 401)}), "service-fault 1: "},
    };
    for (const auto& [facts, expected] : cases) {
        const Verdict verdict = judge(facts);
        EXPECT_THAT(told(verdict), StartsWith(expected));
        EXPECT_EQ(verdict.songs.size(), facts.tracks.size()) << expected;
    }
}

TEST(Verdict, ofASignIn) {
    using Facts = SignInFacts;
    Facts asked; // was sent to the browser, and did nothing there
    asked.wasUserAsked = true;
    asked.settings.wasAsked = true;
    asked.settings.result = ConfigurationResult::kRead;
    const Facts nameless = with(asked, &Facts::isAuthorized, true);
    const Facts signedIn = with(nameless, &Facts::account, "Mara");
    const Facts forUpload = with(signedIn, &Facts::isForUpload, true);
    const auto kept = [&](StoreResult result) { return with(signedIn, &Facts::kept, result); };
    const auto found = [&](StoreResult result) {
        return with(with(asked, &Facts::wasUserAsked, false), &Facts::found, result);
    };
    ConfigurationReport missing = asked.settings;
    missing.title = "Brindlex Client";
    missing.path = "/home/services.ini";
    missing.id = "brindlex";
    missing.missingKeys = {"ServerURL", "ConsumerKey"};
    const Problem refused{Fault::kRefused, "https://service.example", 401, "invalid\ngrant", {}, {}};
    const std::pair<Facts, const char*> cases[] = {
        {signedIn, "signed-in 0: Signed in as Mara."},
        {nameless, "signed-in 0: Signed in."},
        {with(signedIn, &Facts::problem, with(refused, &Problem::fault, Fault::kSignInRefused)),
         "expired 10: The service does not accept the stored sign-in any more."},
        {with(signedIn, &Facts::problem, kNobody),
         "unreachable 6: A sign-in is stored, but the service could not be asked: Connection refused."},
        {with(signedIn, &Facts::problem, {Fault::kServerFault, {}, 503, "down", {}, {}}),
         "unreachable 6: A sign-in is stored, but the service could not be asked: it answered 503."},
        {with(forUpload, &Facts::problem, kNobody), "unreachable 6: The service at https://service.example "
                                                    "cannot be reached: Connection refused. Nothing "
                                                    "was sent."},
        {with(forUpload, &Facts::wantedAccount, "Ann"),
         "other-account 5: Signed in as Mara, not as Ann. Nothing was sent."},
        {with(signedIn, &Facts::wantedAccount, "Mara"), "signed-in 0: Signed in as Mara."},
        {with(nameless, &Facts::wantedAccount, "Ann"),
         "other-account 5: The service does not say who is signed in; it may not be Ann."},
        {kept(StoreResult::kDone), "signed-in 0: Signed in as Mara."},
        {kept(StoreResult::kNoStore),
         "keyring-none 0: Signed in as Mara, until the program ends: this computer has no keyring."},
        {kept(StoreResult::kLocked),
         "keyring-locked 0: Signed in as Mara, until the program ends: the keyring was not unlocked."},
        {kept(StoreResult::kSilent),
         "keyring-silent 0: Signed in as Mara, until the program ends: the keyring does not answer."},
        {with(asked, &Facts::settings, missing),
         "not-set-up 9: Brindlex Client is not set up: ServerURL, ConsumerKey is missing in "
         "“/home/services.ini”, section [brindlex]."},
        {with(asked, &Facts::problem, kNobody),
         "unreachable 6: The service at https://service.example cannot be reached: Connection refused."},
        {with(asked, &Facts::problem, refused),
         "not-signed-in 5: Not signed in: the service refused it: invalid grant."},
        {with(asked, &Facts::isAnswerUnusable, true),
         "not-signed-in 5: Not signed in: the service sent an answer that cannot be used."},
        {asked, "not-signed-in 5: Not signed in: the sign-in was given up."},
        {found(StoreResult::kNothing), "not-signed-in 5: Not signed in."},
        {found(StoreResult::kNoStore), "keyring-none 5: Not signed in: this computer has no keyring."},
        {found(StoreResult::kLocked),
         "keyring-locked 12: The keyring was not unlocked: the stored sign-in cannot be read."},
        {found(StoreResult::kSilent),
         "keyring-silent 12: The keyring does not answer: the stored sign-in cannot be read."},
        {with(with(asked, &Facts::isForUpload, true), &Facts::isCancelled, true),
         "stopped-before 130: Stopped. Nothing was sent."},
    };
    for (const auto& [facts, expected] : cases) {
        EXPECT_EQ(told(judge(facts)), expected);
    }
}

TEST(Verdict, ofASignOutClaimsNoMoreThanWasDone) {
    const struct {
        StoreResult removed;
        bool wasKept;
        const char* sentence;
    } cases[] = {
        {StoreResult::kDone, true, "signed-out 0: Signed out."},
        {StoreResult::kNothing, true, "signed-out 0: Nobody was signed in."},
        {StoreResult::kNothing, false, "signed-out 0: Signed out."},
        {StoreResult::kNoStore, false, "signed-out 0: Signed out."},
        {StoreResult::kNoStore, true,
         "keyring-none 12: No keyring can be reached from here: nothing was removed."},
        {StoreResult::kLocked, false,
         "keyring-locked 12: The keyring was not unlocked: the stored sign-in may still be there."},
        {StoreResult::kSilent, true,
         "keyring-silent 12: The keyring does not answer: the stored sign-in may still be there."},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(told(judgeSignOut(each.removed, each.wasKept)), each.sentence);
    }
}

TEST(Pace, guessesFromTenSecondsAndOnlyOnceItKnows) {
    static constexpr std::int64_t kMegabyte = 1000000;
    Pace pace;
    pace.begin(true, 50000);
    std::int64_t bytes = 0;
    const struct {
        std::int64_t until; // milliseconds
        std::int64_t perSecond;
        std::int64_t speed;   // as measured then
        std::int64_t seconds; // for 10 MB and a byte
    } steps[] = {{500, 2, -1, -1}, {2000, 2, 2, -1}, {4000, 2, 2, 6}, {20000, 4, 4, 3}, {40000, 0, 0, -1}};
    std::int64_t now = 50000;
    for (const auto& step : steps) {
        for (; now < 50000 + step.until; now += 250) {
            bytes += step.perSecond * kMegabyte / 4;
            pace.sent(bytes, now + 250);
        }
        EXPECT_EQ(pace.bytesPerSecond(now), step.speed < 0 ? -1 : step.speed * kMegabyte) << step.until;
        EXPECT_EQ(pace.secondsFor(10 * kMegabyte + 1, now), step.seconds) << step.until;
    }
    EXPECT_EQ(pace.quietSeconds(now), 20);
    pace.pause(now);
    pace.begin(false, now + 60000); // the time between two songs is no time of sending
    EXPECT_EQ(pace.bytesPerSecond(now + 60000), 0);
    EXPECT_EQ(pace.quietSeconds(now + 60000), 0);
}

TEST(Words, areForPeople) {
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
