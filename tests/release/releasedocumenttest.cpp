#include "release/releasedocument.h"

#include "framework/support/data/attributes.h"
#include "framework/support/data/memorystream.h"
#include "tests/fakehost/fakehost.h"

#include <gtest/gtest.h>

namespace {

using fakehost::Rows;

std::string toJson(const xbr::Attributes& attributes) {
    const auto stream = xbr::make<xbr::MemoryStream>();
    xbr::writeJson(attributes, *stream);
    xbr::rewind(*stream);
    return fakehost::withoutLayout(xbr::readAll(*stream));
}

TEST(ReleaseDocument, ReleaseKeysDependOnWhatIsKnown) {
    fakehost::resetHost();
    for (const auto& [title, artist, genre, expected] :
         Rows<const char*, const char*, const char*, const char*>{
             {"Night Drive", "The Lamps", "Electronica",
              R"("title":"Night Drive","main_artists":[{"name":"The Lamps"}],"primary_genre":"Electronica")"},
             {"", "", "", R"("main_artists":[{}])"},
             {"", "VARIOUS ARTISTS", "", R"("various":"true","main_artists":[{"name":"VARIOUS ARTISTS"}])"},
             {"", "various artistry", "", R"("various":"true","main_artists":[{"name":"various artistry"}])"},
             {"", "Various-Artists", "", R"("main_artists":[{"name":"Various-Artists"}])"},
         }) {
        brindlex::TrackMetadata record;
        record.albumTitle = title;
        record.albumArtist = artist;
        record.primaryGenre = genre;
        const auto release = xbr::make<xbr::Attributes>();
        brindlex::writeReleaseAttributes(*release, record, "abc");
        EXPECT_EQ(toJson(*release),
                  R"({"external_release_id":"","client_id":"abc",)" + std::string(expected) + "}");
    }
}

TEST(ReleaseDocument, SongKeysDependOnWhatIsKnown) {
    fakehost::resetHost();
    for (const auto& [title, artist, number, file, expected] :
         Rows<const char*, const char*, int, const char*, const char*>{
             {"Opening", "The Lamps", 1, "o.wav",
              R"({"title":"Opening","audio_filename":"o.wav","artists":[{"name":"The Lamps",)"
              R"("roles":["Main Artist"]}],"track_number":1})"},
             {"", "", 0, "take 2.final.flac",
              R"({"title":"take 2.final","audio_filename":"take 2.final.flac",)"
              R"("artists":[{"roles":["Main Artist"]}]})"},
             {"", "", -3, "README",
              R"({"title":"README","audio_filename":"README","artists":[{"roles":["Main Artist"]}],)"
              R"("track_number":-3})"},
         }) {
        brindlex::TrackMetadata record;
        record.songTitle = title;
        record.songArtist = artist;
        record.trackNumber = number;
        const auto song = xbr::make<xbr::Attributes>();
        brindlex::writeSongAttributes(*song, record, file);
        EXPECT_EQ(toJson(*song), expected);
    }
}

} // namespace
