#include "tests/ui/tracklistfixture.h"

namespace brindlex {

namespace {

class TrackEditingTest : public TrackListFixture {
protected:
    TrackEditingTest() { add({"file:///m/a.wav", "file:///m/b.wav", "file:///m/c.wav"}); }
};

TEST_F(TrackEditingTest, EditorShowsTheTrackWithTheFocus) {
    EXPECT_FALSE(list->editor().findParameter(xbr::toText("songTitle"))->isEnabled());
    edit("songTitle", "nobody");
    list->model().setFocus(1);
    EXPECT_EQ(text("songTitle"), "b");
    EXPECT_TRUE(list->editor().findParameter(xbr::toText("songTitle"))->isEnabled());
    edit("songTitle", "B");
    list->model().setFocus(0);
    EXPECT_EQ(text("songTitle"), "a") << "loading a track edits nothing";
    EXPECT_EQ(record(1).songTitle, "B");
    EXPECT_EQ(track(1).title, "B");
    for (const std::int32_t focus : {0, -1}) {
        list->model().setFocus(focus);
        xbr::Value hasItem{};
        ASSERT_EQ(list->editor().getProperty(xbr::toText("hasFocusItem"), &hasItem), xbr::kOk);
        EXPECT_EQ(hasItem.boolean, focus == 0);
    }
}

TEST_F(TrackEditingTest, SinglesShareTitleAndArtistWithTheirAlbum) {
    select({0}, 0);
    struct Case {
        const char* edited;
        const char* value;
        const char* follows;
    };
    for (const auto& [edited, value, follows] :
         {Case{"songTitle", "Night", "albumTitle"}, Case{"albumTitle", "Day", "songTitle"},
          Case{"albumArtist", "Ann", "songArtist"}, Case{"songArtist", "Bo", "albumArtist"},
          Case{"albumArtist", "", "songArtist"}}) {
        edit(edited, value);
        EXPECT_EQ(text(follows), value) << edited;
    }
    EXPECT_EQ(record(0).albumTitle, "Day");
    EXPECT_EQ(record(0).songTitle, "Day");
    EXPECT_EQ(record(1).songTitle, "b") << "not selected";
}

TEST_F(TrackEditingTest, SelectionIsEditedTogether) {
    select({2, 0}, 1); // the focus belongs to it, selected or not
    edit("songArtist", "All");
    edit("primaryGenre", xbr::integerValue(2));
    edit("albumTitle", "Shared");
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(record(i).songArtist, "All") << i;
        EXPECT_EQ(record(i).albumArtist, "All") << i;
        EXPECT_EQ(record(i).primaryGenre, "Jazz") << i;
        EXPECT_EQ(record(i).singlesGenre, "Jazz") << i;
        EXPECT_EQ(record(i).songTitle, "Shared") << i;
    }
}

TEST_F(TrackEditingTest, AlbumEditsReachAllTracks) {
    switchTo(UploadMode::kAlbum);
    select({1}, 1);
    EXPECT_EQ(text("albumTitle"), "") << "nothing was typed in album mode yet";
    edit("albumTitle", "Album");
    edit("albumArtist", "Band");
    edit("primaryGenre", xbr::integerValue(1));
    edit("songArtist", "Guest");
    EXPECT_EQ(record(2).albumTitle, "Album");
    EXPECT_EQ(record(0).albumArtist, "Band");
    EXPECT_EQ(record(0).primaryGenre, "Rock");
    EXPECT_EQ(record(1).albumArtist, "Band") << "a song's artist is its own in an album";
    EXPECT_EQ(record(0).songArtist, "");
    switchTo(UploadMode::kSingles);
    EXPECT_EQ(record(1).albumTitle, "b");
    EXPECT_EQ(record(1).albumArtist, "Guest");
    switchTo(UploadMode::kAlbum);
    EXPECT_EQ(record(2).albumTitle, "Album") << "remembered";
}

TEST_F(TrackEditingTest, TrackNumberBelongsToTheAlbum) {
    select({0}, 0);
    edit("trackNumber", xbr::integerValue(7));
    EXPECT_EQ(number("trackNumber"), 1) << "a single is always track 1";
    EXPECT_EQ(record(0).trackNumber, 1);
    switchTo(UploadMode::kAlbum);
    edit("trackNumber", xbr::integerValue(7));
    EXPECT_EQ(record(0).trackNumber, 7);
    switchTo(UploadMode::kSingles);
    EXPECT_EQ(number("trackNumber"), 1);
    switchTo(UploadMode::kAlbum);
    EXPECT_EQ(number("trackNumber"), 7);
}

TEST_F(TrackEditingTest, MarksGoWithTheFirstValueAndDoNotComeBack) {
    select({0}, 0);
    list->setCurrentUploadItem(&track(0));
    list->validateForUpload(Marks::kSet);
    EXPECT_EQ(number("songTitleMissing"), 0);
    EXPECT_EQ(number("primaryGenreMissing"), 1);
    edit("primaryGenre", xbr::integerValue(1));
    EXPECT_EQ(number("primaryGenreMissing"), 0);
    edit("primaryGenre", xbr::integerValue(0));
    EXPECT_EQ(number("primaryGenreMissing"), 0) << "only validation marks";

    EXPECT_EQ(number("albumArtistMissing"), 1);
    edit("songArtist", "Ann");
    EXPECT_FALSE(record(0).albumArtistMissing || record(0).songArtistMissing);
    EXPECT_EQ(number("songArtistMissing"), 0);
    EXPECT_EQ(number("albumArtistMissing"), 1) << "shown until the track is loaded again";
    list->model().setFocus(1);
    list->model().setFocus(0);
    EXPECT_EQ(number("albumArtistMissing"), 0);

    record(0).songArtist.clear();
    list->validateForUpload(Marks::kSet);
    list->validateForUpload(Marks::kClear);
    EXPECT_FALSE(record(0).songArtistMissing);
}

TEST_F(TrackEditingTest, AlbumMarksGoFromAllTracks) {
    switchTo(UploadMode::kAlbum);
    select({0}, 0);
    list->validateForUpload(Marks::kSet);
    EXPECT_TRUE(record(2).albumTitleMissing);
    edit("albumTitle", "Album");
    EXPECT_EQ(number("albumTitleMissing"), 0);
    EXPECT_FALSE(record(2).albumTitleMissing);
    EXPECT_TRUE(record(2).albumArtistMissing);
}

TEST_F(TrackEditingTest, ReadyFollowsTheFirstCompleteTrack) {
    select({1}, 1);
    edit("songArtist", "Ann");
    EXPECT_FALSE(list->editor().isReady());
    edit("primaryGenre", xbr::integerValue(1));
    EXPECT_TRUE(list->editor().isReady()) << "one complete track is enough";
    edit("songTitle", "");
    EXPECT_FALSE(list->editor().isReady());
    edit("songTitle", "b");
    EXPECT_TRUE(list->editor().isReady());
    EXPECT_EQ(list->model().removeFocused(), xbr::kOk);
    EXPECT_FALSE(list->editor().isReady()) << "the complete one is gone";
    select({0}, 0);
    edit("songArtist", "Ann");
    edit("primaryGenre", xbr::integerValue(1));
    list->removeAll();
    EXPECT_FALSE(list->editor().isReady());
}

} // namespace

} // namespace brindlex
