#include "host/app/headless/commandline/releasefile.h"
#include "tests/fixtures/testfolder.h"

#include <gmock/gmock.h>

namespace xbr::host {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class ReleaseFile : public testing::Test {
protected:
    bool read(const std::string& text) {
        return readReleaseFile(m_folder.write("release.json", text), m_plan, m_error);
    }

    TestFolder m_folder;
    ReleaseWish m_plan;
    std::string m_error;
};

} // namespace

TEST_F(ReleaseFile, tellsAnAlbum) {
    ASSERT_TRUE(read(R"({"album": {"title": "Axé \"live\"", "artist": "The Lamps"}, "genre": "Pop",
                         "songs": [{"file": "sub/a.aiff", "title": "A", "artist": "X", "trackNumber": 9999},
                                   {"file": "/abs/b.mp3"}]})"))
        << m_error;
    EXPECT_EQ(m_plan.mode, ReleaseMode::kAlbum);
    EXPECT_EQ(m_plan.albumTitle, "Axé \"live\"");
    EXPECT_EQ(m_plan.albumArtist, "The Lamps");
    EXPECT_EQ(m_plan.genre, "Pop");
    ASSERT_EQ(m_plan.songs.size(), 2U);
    EXPECT_EQ(m_plan.songs[0].path, m_folder.path("sub/a.aiff")) << "beside the release file";
    EXPECT_EQ(m_plan.songs[0].title, "A");
    EXPECT_EQ(m_plan.songs[0].artist, "X");
    EXPECT_EQ(m_plan.songs[0].number, 9999);
    EXPECT_EQ(m_plan.songs[1].path, "/abs/b.mp3");
    EXPECT_EQ(m_plan.songs[1].number, 0);
}

TEST_F(ReleaseFile, withoutAnAlbumSongsAreSingles) {
    ASSERT_TRUE(read(R"({"songs": [{"file": "a.wav", "genre": "Rock"}]})")) << m_error;
    EXPECT_EQ(m_plan.mode, ReleaseMode::kSingles);
    EXPECT_EQ(m_plan.songs[0].genre, "Rock");
}

TEST_F(ReleaseFile, saysWhatIsWrong) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "not valid JSON"},
        {"{\n \"songs\": [}", "line 2"},
        {"[]", "the release must be an object"},
        {"{}", "'songs' must be an array of at least one"},
        {R"({"songs": []})", "at least one"},
        {R"({"songs": {"file": "a"}})", "at least one"},
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
        {R"({"songs": [{"file": "a", "trackNumber": "3"}]})", "'trackNumber' of song 1 must be"},
        {R"({"songs": [{"file": "a", "trackNumber": 1.5}]})", "'trackNumber' of song 1 must be"},
        {R"({"songs": [{"file": "a", "trackNumber": 18446744073709551615}]})", "from 1 to 9999"},
        {R"({"album": {}, "songs": [{"file": "a", "genre": "Pop"}]})", "an album has one for all"},
        {R"({"songs": [{"file": "a", "file": "b"}]})", "has the key 'file' twice"},
        {R"({"songs": [{"file": "a"}]} x)", "not valid JSON"},
        {"{\"genre\": \"\xC3\x28\", \"songs\": []}", "not valid JSON"},
    };
    for (const auto& [text, words] : cases) {
        EXPECT_FALSE(read(text)) << text;
        EXPECT_THAT(m_error, HasSubstr(words)) << text;
        EXPECT_THAT(m_error, HasSubstr("release.json"));
    }
    EXPECT_FALSE(read(std::string(5000, '[')));
    EXPECT_FALSE(readReleaseFile(m_folder.path("none.json"), m_plan, m_error));
    EXPECT_THAT(m_error, HasSubstr("is not there"));
    EXPECT_FALSE(readReleaseFile(m_folder.path(), m_plan, m_error));
    EXPECT_THAT(m_error, HasSubstr("is not a file"));
}

} // namespace xbr::host
