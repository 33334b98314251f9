#include "tests/ui/tracklistfixture.h"

namespace brindlex {

namespace {

using fakehost::host;

class TrackListTest : public TrackListFixture {
protected:
    std::string cell(std::int32_t row, std::int32_t column,
                     xbr::CellStyle expected = xbr::CellStyle::kNormal) {
        xbr::Ref<xbr::IString> text;
        xbr::CellStyle style{};
        EXPECT_EQ(list->model().getCell(row, column, text.out(), &style), xbr::kOk);
        EXPECT_EQ(style, expected);
        return xbr::take(text);
    }
};

TEST_F(TrackListTest, EditorTellsWhetherATrackHasTheFocus) {
    add({"file:///m/a.wav"});
    for (const std::int32_t focus : {0, -1}) {
        list->model().setFocus(focus);
        xbr::Value hasItem{};
        ASSERT_EQ(list->editor().getProperty(xbr::toText("hasFocusItem"), &hasItem), xbr::kOk);
        EXPECT_EQ(hasItem.boolean, focus == 0);
    }
}

TEST_F(TrackListTest, TakesAudioFilesAndTheirTags) {
    host().objects.tags["file:///m/b.flac"] = {{"Media:Title", "Tagged"}, {"Media:Genre", "Jazz"}};
    EXPECT_EQ(list->model().dragOver(files({"file:///m/x.txt", "file:///m/a.wav"}).get()),
              xbr::DropEffect::kCopy);
    EXPECT_EQ(list->model().dragOver(files({"file:///m/x.txt"}).get()), xbr::DropEffect::kNone);
    EXPECT_EQ(list->model().drop(files({"file:///m/x.aiff", "file:///m/folder.wav/"}).get()), xbr::kFalse);
    EXPECT_EQ(
        list->model().drop(files({"file:///m/My%20Take.1.wav", "file:///m/x.txt", "file:///m/b.flac"}).get()),
        xbr::kOk);
    ASSERT_EQ(list->model().countRows(), 2);
    EXPECT_EQ(cell(0, 0), "My Take.1");
    EXPECT_EQ(cell(0, 1), "My Take.1.wav");
    EXPECT_EQ(cell(1, 0), "Tagged");
    EXPECT_EQ(track(1).metadata->primaryGenre, "Jazz");
    add({"file:///m/.wav"});
    EXPECT_EQ(cell(2, 0), ".wav") << "nothing stands before the dot";
    EXPECT_TRUE(track(0).enabled);
    EXPECT_EQ(track(0).metadata->trackNumber, 1);
    EXPECT_EQ(track(1).metadata->trackNumber, 1) << "adding does not number";
}

TEST_F(TrackListTest, AlbumModeGivesAllTracksTheFirstOnesRelease) {
    host().objects.tags["file:///m/a.wav"] = {{"Media:Title", "A"}, {"Media:Genre", "Rock"}};
    host().objects.tags["file:///m/b.wav"] = {{"Media:Title", "B"}, {"Media:Genre", "Jazz"}};
    list->prepareMode(UploadMode::kAlbum);
    add({"file:///m/a.wav", "file:///m/b.wav"});
    EXPECT_EQ(track(1).metadata->albumTitle, "A");
    EXPECT_EQ(track(1).metadata->primaryGenre, "Rock");
    switchTo(UploadMode::kSingles);
    EXPECT_EQ(track(1).metadata->albumTitle, "B") << "each song's own again";
    EXPECT_EQ(track(1).metadata->primaryGenre, "Jazz");
    list->prepareMode(UploadMode::kAlbum);
    add({"file:///m/a.wav"});
    EXPECT_EQ(track(1).metadata->albumTitle, "A") << "the new one takes the others with it";
}

TEST_F(TrackListTest, ColumnsAreTheirTitlesAndWidths) {
    struct Case {
        const char* title;
        std::int32_t width;
    };
    const Case cases[] = {{"Title", 150}, {"File", 300}, {"State", 150}};
    ASSERT_EQ(list->model().countColumns(), 3);
    for (std::int32_t i = 0; i < 3; ++i) {
        EXPECT_EQ(xbr::toString(list->model().columnAt(i).title), cases[i].title);
        EXPECT_EQ(list->model().columnAt(i).width, cases[i].width);
    }
}

TEST_F(TrackListTest, StateCellTellsProgressAndOutcome) {
    add({"file:///m/a.wav"});
    struct Case {
        bool uploading;
        double progress;
        TrackUploadState state;
        const char* text;
        xbr::CellStyle style;
    };
    const Case cases[] = {
        {true, 0.37, TrackUploadState::kNone, "37%", xbr::CellStyle::kBusy},
        {true, 0.999, TrackUploadState::kFailed, "99%", xbr::CellStyle::kBusy},
        {false, 1.0, TrackUploadState::kNone, "", xbr::CellStyle::kNormal},
        {false, 1.0, TrackUploadState::kDone, "Done", xbr::CellStyle::kNormal},
        {false, 0.5, TrackUploadState::kFailed, "Failed", xbr::CellStyle::kError},
        {false, 1.0, TrackUploadState::kMissingInformation, "Missing Information", xbr::CellStyle::kNormal},
    };
    for (const auto& [uploading, progress, state, text, style] : cases) {
        track(0).uploading = uploading;
        track(0).progress = progress;
        track(0).state = state;
        EXPECT_EQ(cell(0, 2, style), text);
    }
}

TEST_F(TrackListTest, FileDialogOffersTheServicesFormats) {
    host().fileTypes.mimeTypes["flac"] = "audio/flac"; // the one that this host knows
    list->findParameter(xbr::toText("addTracks"))->setValue(xbr::integerValue(1));
    EXPECT_EQ(host().objects.log,
              (std::vector<std::string>{"filter wav", "filter flac audio/flac", "filter mp3", "choose 1"}));
    EXPECT_EQ(list->model().countRows(), 0) << "cancelled";
    host().objects.chosenFiles = {"file:///m/b.MP3", "file:///m/x.aiff", "file:///m/a.wav"};
    list->findParameter(xbr::toText("addTracks"))->setValue(xbr::integerValue(1));
    ASSERT_EQ(list->model().countRows(), 2);
    EXPECT_EQ(cell(0, 1), "b.MP3") << "in the dialog's order";
}

TEST_F(TrackListTest, ResetSendsSelectedTracksAgain) {
    add({"file:///m/a.wav", "file:///m/b.wav", "file:///m/c.wav"});
    const TrackUploadState states[] = {TrackUploadState::kDone, TrackUploadState::kFailed,
                                       TrackUploadState::kDone};
    for (std::size_t i = 0; i < 3; ++i) {
        track(i).state = states[i];
    }
    track(1).uploading = true;
    xbr::Ref<xbr::ICommandList> commands;
    ASSERT_EQ(list->model().getContextCommands(commands.out()), xbr::kOk);
    ASSERT_EQ(commands->count(), 1);
    EXPECT_EQ(xbr::toString(commands->categoryAt(0)) + "/" + xbr::toString(commands->nameAt(0)),
              "Tracks/Reset");
    EXPECT_FALSE(commands->isEnabled(0)) << "nothing is selected";
    select({1}, 0);
    EXPECT_EQ(commands->perform(0), xbr::kFalse) << "on its way, and the focus does not count";
    select({1, 2}, 0);
    EXPECT_EQ(commands->perform(0), xbr::kOk);
    EXPECT_EQ(track(0).state, TrackUploadState::kDone);
    EXPECT_EQ(track(1).state, TrackUploadState::kFailed);
    EXPECT_EQ(track(2).state, TrackUploadState::kNone);
    EXPECT_FALSE(commands->isEnabled(0));
}

TEST_F(TrackListTest, AlbumTracksStayMarkedUntilTheEnd) {
    add({"file:///m/a.wav", "file:///m/b.wav"});
    list->setCurrentUploadItem(&track(0));
    EXPECT_FALSE(list->model().isEditable(0));
    list->setCurrentUploadItem(&track(1));
    EXPECT_TRUE(list->model().isEditable(0)) << "singles: one at a time";
    list->setCurrentUploadItem(nullptr);
    list->prepareMode(UploadMode::kAlbum);
    list->setCurrentUploadItem(&track(0));
    list->setCurrentUploadItem(&track(1));
    EXPECT_TRUE(track(0).uploading);
    list->setCurrentUploadItem(nullptr);
    EXPECT_FALSE(track(0).uploading || track(1).uploading);

    list->setCurrentUploadItem(&track(0));
    const auto removed = xbr::Ref<TrackItem>::share(&track(0));
    list->removeAll();
    list->setCurrentUploadItem(nullptr);
    EXPECT_FALSE(removed->uploading) << "it may be added again";
}

} // namespace

} // namespace brindlex
