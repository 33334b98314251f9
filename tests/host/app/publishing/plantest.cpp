// What is handed over, and what is wrong with it: one table of songs and wishes.

#include "host/app/publishing/plan.h"

#include "host/app/publishing/verdict/verdict.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace xbr::host {
namespace {

/// A song as its file would tell of it.
SongFile file(const std::string& path, const std::vector<std::pair<std::string, std::string>>& tags = {},
              int number = 0) {
    SongFile song;
    song.path = path;
    song.identity = path;
    song.size = 1000;
    song.kind = extensionOf(path) == "flac" ? "FLAC" : (extensionOf(path) == "mp3" ? "MP3" : "WAV");
    for (const auto& [name, text] : tags) {
        song.tags.texts.emplace_back("Media:" + name, text);
    }
    song.tags.trackIndex = number;
    return song;
}

const std::vector<std::pair<std::string, std::string>> kTags{
    {"Title", "Harbour"}, {"Artist", "The Lamps"},      {"Genre", "Rock"},
    {"Album", "Lights"},  {"AlbumArtist", "The Lamps"},
};

std::vector<std::pair<std::string, std::string>> tagsWith(const std::string& name, const std::string& text) {
    auto tags = kTags;
    for (auto& [known, value] : tags) {
        value = known == name ? text : value;
    }
    return tags;
}

SongFile full(const std::string& path, int number = 1) {
    return file(path, kTags, number);
}

SongFile bad(const std::string& path, Problem problem) {
    SongFile song = full(path);
    problem.subject = path;
    song.problem = std::move(problem);
    return song;
}

SongFile withKind(SongFile song, const std::string& kind) {
    song.kind = kind;
    return song;
}

SongFile published(SongFile song) {
    song.published = 1;
    return song;
}

SongFile withIdentity(SongFile song, const std::string& identity) {
    song.identity = identity;
    return song;
}

Offer offer() {
    return {Genres({"Ambient", "Classical", "High Classical", "Hip Hop/Rap", "Rock"}),
            [](const std::string& extension) {
                return extension == "wav" || extension == "flac" || extension == "mp3" ? "" : "wav";
            },
            false};
}

Plan planOf(ReleaseWish wish, const std::vector<SongFile>& songs) {
    wish.songs.resize(songs.size());
    return makePlan(wish, songs, offer());
}

/// "title by artist (genre): number title by artist in file, …" of each release.
std::string described(const Plan& plan) {
    std::string text;
    for (const PlannedRelease& release : plan.releases) {
        text += (text.empty() ? "" : " | ") + release.title + " by " + release.artist + " (" + release.genre +
                "):";
        for (const PlannedSong& song : release.songs) {
            text += " " + std::to_string(song.number) + " " + song.title + " by " + song.artist + " in " +
                    song.fileName + (song.isRendered ? "*" : "") + ";";
        }
    }
    return text;
}

ReleaseWish singles() {
    return {};
}

ReleaseWish album() {
    ReleaseWish wish;
    wish.mode = ReleaseMode::kAlbum;
    return wish;
}

ReleaseWish withGenre(ReleaseWish wish, const std::string& genre) {
    wish.genre = genre;
    return wish;
}

ReleaseWish skippingUnreadable(ReleaseWish wish) {
    wish.skipsUnreadable = true;
    return wish;
}

ReleaseWish sendingAgain(ReleaseWish wish) {
    wish.sendsAgain = true;
    return wish;
}

ReleaseWish skippingIncomplete(ReleaseWish wish) {
    wish.skipsIncomplete = true;
    return wish;
}

struct Case {
    const char* what;
    ReleaseWish wish;
    std::vector<SongFile> songs;
    const char* plan; ///< null: it does not matter
    Cause cause;
    int code;
    const char* sentence;
};

TEST(Plan, FollowsFromSongsAndWishes) {
    const Problem cut{Fault::kCutShort, {}, 0, {}, "2:10", "4:02"};
    const Case cases[] = {
        {"tags",
         singles(),
         {full("/m/a.wav", 7)},
         "Harbour by The Lamps (Rock): 1 Harbour by The Lamps in a.wav;",
         Cause::kPublished,
         0,
         ""},
        {"an album takes what its first song says",
         album(),
         {full("/m/a.wav", 7), file("/m/b.mp3", tagsWith("Album", "Other"), 2)},
         "Lights by The Lamps (Rock): 7 Harbour by The Lamps in a.wav; 2 Harbour by The Lamps in b.mp3;",
         Cause::kPublished,
         0,
         ""},
        {"what the user says wins",
         withGenre(album(), "aMBIENT"),
         {full("/m/a.wav")},
         "Lights by The Lamps (Ambient): 1 Harbour by The Lamps in a.wav;",
         Cause::kPublished,
         0,
         ""},
        {"rendered songs keep their names, unlike all others",
         album(),
         {full("/m/a.wav"), full("/m/a.aiff", 2), full("/m/a.ogg", 3)},
         "Lights by The Lamps (Rock): 1 Harbour by The Lamps in a.wav; 2 Harbour by The Lamps in a (2).wav*; "
         "3 "
         "Harbour by The Lamps in a (3).wav*;",
         Cause::kPublished,
         0,
         ""},
        {"names without tags",
         withGenre(singles(), "Rock"),
         {file("/m/01 Night Drive.wav")},
         "Night Drive by  (Rock): 1 Night Drive by  in 01 Night Drive.wav;",
         Cause::kMissingDetails,
         7,
         "“Night Drive” lacks: song artist. Nothing was sent."},
        {"two files of one name in an album",
         album(),
         {full("/m/mix.wav"), full("/n/mix.wav", 2)},
         nullptr,
         Cause::kSameName,
         3,
         "“/m/mix.wav” and “/n/mix.wav” have the same file name; in an album each song needs its own. "
         "Nothing "
         "was sent."},
        {"two files of one name as singles",
         singles(),
         {full("/m/mix.wav"), full("/n/mix.wav")},
         nullptr,
         Cause::kPublished,
         0,
         ""},
        {"one file twice",
         singles(),
         {withIdentity(full("/m/a.wav"), "1:2"), withIdentity(full("/n/link.wav"), "1:2")},
         nullptr,
         Cause::kSameFile,
         2,
         "“link.wav” is there twice. Nothing was sent."},
        {"control characters in a name",
         singles(),
         {full("/m/a\x01.wav")},
         nullptr,
         Cause::kUnreadable,
         3,
         "“a\x01.wav” cannot be published: its name holds control characters. Nothing was sent."},
        {"a name that is not UTF-8",
         singles(),
         {full("/m/caf\xE9.aiff")},
         nullptr,
         Cause::kUnreadable,
         3,
         nullptr},
        {"another kind than the name says",
         singles(),
         {withKind(full("/m/liar.mp3"), "WAV")},
         nullptr,
         Cause::kUnreadable,
         3,
         "“liar.mp3” cannot be published: it is WAV, not MP3 as its name says. Nothing was sent."},
        {"cut off",
         singles(),
         {full("/m/a.wav"), bad("/m/b.flac", cut)},
         nullptr,
         Cause::kUnreadable,
         3,
         "“b.flac” cannot be published: it is cut off: 2:10 of 4:02. Nothing was sent."},
        {"left out when the user says so",
         skippingUnreadable(singles()),
         {full("/m/a.wav"), bad("/m/b.flac", cut)},
         "Harbour by The Lamps (Rock): 1 Harbour by The Lamps in a.wav;",
         Cause::kPublished,
         0,
         ""},
        {"not when nothing would remain",
         skippingUnreadable(singles()),
         {bad("/m/b.flac", cut)},
         "",
         Cause::kUnreadable,
         3,
         nullptr},
        {"published before, the others go",
         singles(),
         {published(full("/m/a.wav")), full("/m/b.flac")},
         "Harbour by The Lamps (Rock): 1 Harbour by The Lamps in b.flac;",
         Cause::kPublished,
         0,
         nullptr},
        {"published before, and nothing else",
         singles(),
         {published(full("/m/a.wav")), published(full("/m/b.flac"))},
         "",
         Cause::kPublishedBefore,
         11,
         "2 of 2 songs were published from this computer before. Nothing was sent."},
        {"an album of which a song was published",
         album(),
         {published(full("/m/a.wav")), full("/m/b.flac", 2)},
         nullptr,
         Cause::kPublishedBefore,
         11,
         nullptr},
        {"published before, and wanted again",
         sendingAgain(album()),
         {published(full("/m/a.wav")), full("/m/b.flac", 2)},
         nullptr,
         Cause::kPublished,
         0,
         nullptr},
        {"missing",
         singles(),
         {bad("/m/a.wav", {Fault::kMissing, {}, 2, {}, {}, {}})},
         nullptr,
         Cause::kUnreadable,
         3,
         "“a.wav” cannot be published: it is not there. Nothing was sent."},
        {"a genre that is not known is not handed over",
         singles(),
         {file("/m/a.wav", tagsWith("Genre", "Romantic Classical"))},
         "Harbour by The Lamps (): 1 Harbour by The Lamps in a.wav;",
         Cause::kUnknownGenre,
         7,
         "“Harbour” has the genre “Romantic Classical”, which the service does not know. Nearest: Classical. "
         "Nothing was sent."},
        {"the number of an old tag",
         singles(),
         {file("/m/a.mp3", tagsWith("Genre", "(17)"))},
         "Harbour by The Lamps (Rock): 1 Harbour by The Lamps in a.mp3;",
         Cause::kPublished,
         0,
         ""},
        {"a genre that the user made up",
         withGenre(singles(), "Rocl"),
         {full("/m/a.wav")},
         nullptr,
         Cause::kUnknownGenre,
         2,
         "The service does not know the genre “Rocl”. Nearest: Rock. Nothing was sent."},
        {"an album without a title",
         album(),
         {file("/m/a.wav", tagsWith("Album", ""), 1)},
         nullptr,
         Cause::kMissingDetails,
         7,
         "The album lacks: album title. Nothing was sent."},
        {"singles that lack something are left out when the user says so",
         skippingIncomplete(singles()),
         {full("/m/a.wav"), file("/m/b.wav")},
         "Harbour by The Lamps (Rock): 1 Harbour by The Lamps in a.wav;",
         Cause::kPublished,
         0,
         ""},
        {"not when nothing would remain, either",
         skippingIncomplete(singles()),
         {file("/m/b.wav")},
         nullptr,
         Cause::kMissingDetails,
         7,
         "“b” lacks: song artist, genre. Nothing was sent."},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        const Plan plan = planOf(each.wish, each.songs);
        const Verdict verdict = judge(plan);
        if (each.plan) {
            EXPECT_EQ(described(plan), each.plan);
        }
        EXPECT_EQ(verdict.cause, each.cause) << nameOf(verdict.cause);
        EXPECT_EQ(static_cast<int>(verdict.code), each.code);
        if (each.sentence) {
            EXPECT_EQ(verdict.sentence, each.sentence);
        }
        EXPECT_EQ(plan.canBeSent(), each.cause == Cause::kPublished);
    }
}

TEST(Plan, WhatCanBeSettledInAPanelDoesNotStandInItsWay) {
    ReleaseWish wish;
    wish.mode = ReleaseMode::kPanel;
    EXPECT_FALSE(planOf(wish, {full("/m/a.wav")}).isAlbum()) << "one song leaves the mode alone";
    for (const auto& songs : {std::vector{full("/m/mix.wav"), full("/n/mix.wav", 2)},
                              std::vector{file("/m/a.wav"), file("/m/b.wav")}}) {
        const Plan plan = planOf(wish, songs);
        EXPECT_TRUE(plan.isAlbum());
        EXPECT_TRUE(plan.canBeHandedOver());
        EXPECT_FALSE(plan.canBeSent());
        EXPECT_FALSE(planOf(album(), songs).canBeHandedOver());
    }
    EXPECT_FALSE(planOf(wish, {bad("/m/a.wav", {Fault::kNotAudio, {}, 0, {}, {}, {}})}).canBeHandedOver());
}

TEST(Plan, TellsOfTwoSongsOfOneNumber) {
    const Verdict verdict =
        judge(planOf(album(), {full("/m/a.wav", 3), full("/m/b.wav", 3), full("/m/c.wav", 3)}));
    EXPECT_TRUE(verdict.isGood());
    ASSERT_EQ(verdict.warnings.size(), 1U);
    EXPECT_EQ(verdict.warnings.front(), "“Harbour” and “Harbour” both have the number 3.");
}

TEST(Plan, ReadsFileNames) {
    const struct {
        const char* path;
        int number;
        const char* title;
    } cases[] = {
        {"/m/01 Night Drive.wav", 1, "Night Drive"},
        {"12 - Harbour.aiff", 12, "Harbour"},
        {"3. Quay.wav", 3, "Quay"},
        {"07_Low_Tide.wav", 7, "Low_Tide"},
        {"7 Seconds.wav", 0, "7 Seconds"},
        {"1999.wav", 0, "1999"},
        {"2001 Odyssey.wav", 0, "2001 Odyssey"},
        {"00 Hidden.wav", 0, "00 Hidden"},
        {"01.wav", 0, "01"},
        {"Song.of.Songs.wav", 0, "Song.of.Songs"},
        {"01 .wav", 0, "01 "},
        {".wav", 0, ".wav"},
    };
    for (const auto& each : cases) {
        const NameTags name = readFileName(each.path);
        EXPECT_EQ(name.number, each.number) << each.path;
        EXPECT_EQ(name.title, each.title);
    }
}

TEST(Genres, AreMatchedAsTagsWriteThem) {
    const Genres genres({"Classical", "Hip Hop/Rap", "Rock", "R&B/Soul"});
    const struct {
        const char* written;
        const char* known; ///< null: none
    } cases[] = {
        {"rOCK", "Rock"},      {" Rock ", "Rock"},  {"(17)", "Rock"},     {"17", "Rock"},
        {"(32)", "Classical"}, {"32", "Classical"}, {"(32)Rock", "Rock"}, {"(32)Fado", "Classical"},
        {"Polka", nullptr},    {"(999)", nullptr},  {"", nullptr},        {"(", nullptr},
        {"-1", nullptr},       {"32a", nullptr},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(genres.match(each.written).value_or("(none)"), each.known ? each.known : "(none)")
            << each.written;
    }
    EXPECT_EQ(Genres({"Axé", "Pop"}).match("AXÉ"), "Axé");
    EXPECT_EQ(Genres({"J-Pop", "Techno (Peak Time / Driving)", "Pop"}).near("technno"),
              std::vector<std::string>{"Techno (Peak Time / Driving)"});
    EXPECT_EQ(genres.near("Rocl"), std::vector<std::string>{"Rock"});
    EXPECT_EQ(genres.near("hip hop"), std::vector<std::string>{"Hip Hop/Rap"});
    EXPECT_TRUE(genres.near("Quasimodo").empty());
}

} // namespace
} // namespace xbr::host
