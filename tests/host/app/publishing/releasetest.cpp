#include "host/app/headless/commandline/releasefile.h"
#include "tests/fixtures/testfolder.h"

#include <gmock/gmock.h>

namespace xbr::host {

namespace {

using testing::AllOf;
using testing::HasSubstr;

class ReleaseFile : public testing::Test {
protected:
    /// "album title/artist, genre: path, title, artist, genre, number; …", or what is wrong.
    std::string read(const std::string& text) {
        ReleaseWish wish;
        std::string error;
        if (!readReleaseFile(m_folder.write("release.json", text), wish, error)) {
            return error;
        }
        std::string all = wish.mode == ReleaseMode::kAlbum ? "album " : "singles ";
        all += wish.albumTitle + "/" + wish.albumArtist + ", " + wish.genre + ":";
        for (const SongWish& song : wish.songs) {
            all += " " + song.path + ", " + song.title + ", " + song.artist + ", " + song.genre + ", " +
                   std::to_string(song.number) + ";";
        }
        return all;
    }

    TestFolder m_folder;
};

} // namespace

TEST_F(ReleaseFile, tellsAnAlbumAndWithoutOneSingles) {
    EXPECT_EQ(read(R"({"album": {"title": "Axé \"live\"", "artist": "Duo"}, "genre": "Pop",
                       "songs": [{"file": "sub/a.aiff", "title": "A", "artist": "X", "trackNumber": 9999},
                                 {"file": "/abs/b.mp3"}]})"),
              "album Axé \"live\"/Duo, Pop: " + m_folder.path("sub/a.aiff") +
                  ", A, X, , 9999; /abs/b.mp3, , , , 0;");
    EXPECT_EQ(read(R"({"songs": [{"file": "/a.wav", "genre": "Rock"}]})"),
              "singles /, : /a.wav, , , Rock, 0;");
}

TEST_F(ReleaseFile, saysWhatIsWrong) {
    const std::pair<std::string, const char*> cases[] = {
        {"{\n \"songs\": [}", "line 2"},
        {"[]", "the release must be an object"},
        {"{}", "'songs' must be an array of at least one"},
        {R"({"songs": []})", "at least one"},
        {R"({"songs": ["a.wav"]})", "song 1 must be an object"},
        {R"({"songs": [{"file": "a"}, {"title": "b"}]})", "song 2 has no 'file'"},
        {R"({"songs": [{"file": "a", "titel": "b"}]})", "song 1 has the unknown key 'titel'"},
        {R"({"song": [], "songs": [{"file": "a"}]})", "the release has the unknown key 'song'"},
        {R"({"album": true, "songs": [{"file": "a"}]})", "'album' must be an object"},
        {R"({"album": {"name": "x"}, "songs": [{"file": "a"}]})", "'album' has the unknown key 'name'"},
        {R"({"genre": 1, "songs": [{"file": "a"}]})", "'genre' of the release must be a text"},
        {R"({"songs": [{"file": "a", "title": " "}]})", "'title' of song 1 is empty"},
        {R"({"songs": [{"file": "a", "title": "x\ny"}]})", "'title' of song 1 holds a line break"},
        {R"({"songs": [{"file": "a", "trackNumber": 0}]})", "'trackNumber' of song 1 must be"},
        {R"({"songs": [{"file": "a", "trackNumber": 1.5}]})", "'trackNumber' of song 1 must be"},
        {R"({"songs": [{"file": "a", "trackNumber": 18446744073709551615}]})", "from 1 to 9999"},
        {R"({"album": {}, "songs": [{"file": "a", "genre": "Pop"}]})", "an album has one for all"},
        {R"({"songs": [{"file": "a", "file": "b"}]})", "has the key 'file' twice"},
        {"{\"genre\": \"\xC3\x28\", \"songs\": []}", "not valid JSON"},
        {std::string(5000, '['), "nested too deeply"},
    };
    for (const auto& [text, words] : cases) {
        EXPECT_THAT(read(text), AllOf(HasSubstr("release.json"), HasSubstr(words)));
    }
    ReleaseWish wish;
    std::string error;
    EXPECT_FALSE(readReleaseFile(m_folder.path("none.json"), wish, error));
    EXPECT_THAT(error, HasSubstr("is not there"));
    EXPECT_FALSE(readReleaseFile(m_folder.path(), wish, error));
    EXPECT_THAT(error, HasSubstr("is not a file"));
}

} // namespace xbr::host
