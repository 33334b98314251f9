#include "tests/ui/tracklistfixture.h"

namespace brindlex {

namespace {

using fakehost::host;
using fakehost::Rows;

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

TEST_F(TrackListTest, TakesAudioFilesAndTheirTags) {
    host().objects.tags["file:///m/b.flac"] = {{"Media:Title", "Tagged"}, {"Media:Genre", "Jazz"}};
    auto& model = list->model();
    EXPECT_EQ(model.dragOver(files({"file:///m/x.txt", "file:///m/a.wav"}).get()), xbr::DropEffect::kCopy);
    EXPECT_EQ(model.dragOver(files({"file:///m/x.txt"}).get()), xbr::DropEffect::kNone);
    EXPECT_EQ(model.drop(files({"file:///m/x.aiff", "file:///m/folder.wav/"}).get()), xbr::kFalse);
    const auto dropped = files({"file:///m/My%20Take.1.wav", "file:///m/x.txt", "file:///m/b.flac"});
    EXPECT_EQ(model.drop(dropped.get()), xbr::kOk);
    add({"file:///m/.wav"});
    ASSERT_EQ(model.countRows(), 3);
    EXPECT_EQ(cell(0, 0) + "|" + cell(0, 1), "My Take.1|My Take.1.wav");
    EXPECT_EQ(cell(1, 0) + "|" + record(1).primaryGenre, "Tagged|Jazz");
    EXPECT_EQ(cell(2, 0), ".wav") << "nothing stands before the dot";
    EXPECT_TRUE(track(0).enabled);
    EXPECT_EQ(record(0).trackNumber + record(1).trackNumber, 2) << "adding does not number";
    for (const std::int32_t focus : {0, -1}) {
        model.setFocus(focus);
        EXPECT_EQ(fakehost::property(list->editor(), "hasFocusItem").boolean, focus == 0);
    }
}

TEST_F(TrackListTest, CellsTellProgressAndOutcome) {
    std::string columns;
    for (std::int32_t i = 0; i < list->model().countColumns(); ++i) {
        const auto column = list->model().columnAt(i);
        columns += xbr::toString(column.title) + " " + std::to_string(column.width) + ", ";
    }
    EXPECT_EQ(columns, "Title 150, File 300, State 150, ");
    add({"file:///m/a.wav"});
    using State = TrackUploadState;
    using Style = xbr::CellStyle;
    for (const auto& [uploading, progress, state, text, style] :
         Rows<bool, double, State, const char*, Style>{
             {true, 0.37, State::kNone, "37%", Style::kBusy},
             {true, 0.999, State::kFailed, "99%", Style::kBusy},
             {false, 1.0, State::kNone, "", Style::kNormal},
             {false, 1.0, State::kDone, "Done", Style::kNormal},
             {false, 0.5, State::kFailed, "Failed", Style::kError},
             {false, 1.0, State::kMissingInformation, "Missing Information", Style::kNormal},
         }) {
        track(0).uploading = uploading;
        track(0).progress = progress;
        track(0).state = state;
        EXPECT_EQ(cell(0, 2, style), text);
    }
}

TEST_F(TrackListTest, FileDialogOffersTheServicesFormats) {
    host().fileTypes.mimeTypes["flac"] = "audio/flac"; // the one that this host knows
    fakehost::press(*list, "addTracks");
    EXPECT_EQ(host().objects.log,
              (std::vector<std::string>{"filter wav", "filter flac audio/flac", "filter mp3", "choose 1"}));
    EXPECT_EQ(list->model().countRows(), 0) << "cancelled";
    host().objects.chosenFiles = {"file:///m/b.MP3", "file:///m/x.aiff", "file:///m/a.wav"};
    fakehost::press(*list, "addTracks");
    ASSERT_EQ(list->model().countRows(), 2);
    EXPECT_EQ(cell(0, 1), "b.MP3") << "in the dialog's order";
}

TEST_F(TrackListTest, ResetSendsSelectedTracksAgain) {
    add({"file:///m/a.wav", "file:///m/b.wav", "file:///m/c.wav"});
    using State = TrackUploadState;
    track(0).state = track(2).state = State::kDone;
    track(1).state = State::kFailed;
    track(1).uploading = true;
    xbr::Ref<xbr::ICommandList> commands;
    ASSERT_EQ(list->model().getContextCommands(commands.out()), xbr::kOk);
    ASSERT_EQ(commands->count(), 1);
    EXPECT_EQ(xbr::toString(commands->categoryAt(0)) + "/" + xbr::toString(commands->nameAt(0)),
              "Tracks/Reset");
    list->model().setFocus(0);
    EXPECT_FALSE(commands->isEnabled(0)) << "nothing is selected, and the focus does not count";
    const std::int32_t rows[] = {1, 2};
    list->model().setSelection(rows, 1);
    EXPECT_EQ(commands->perform(0), xbr::kFalse) << "on its way";
    list->model().setSelection(rows, 2);
    EXPECT_EQ(commands->perform(0), xbr::kOk);
    EXPECT_EQ((std::vector{track(0).state, track(1).state, track(2).state}),
              (std::vector{State::kDone, State::kFailed, State::kNone}));
    EXPECT_FALSE(commands->isEnabled(0));
}

TEST_F(TrackListTest, AViewThatWritesBackWhatItIsShownChangesNothing) {
    add({"file:///m/a.wav", "file:///m/b.wav"});
    list->model().setFocus(0);
    fakehost::set(list->editor(), "songArtist", xbr::textValue("Ann"));
    const auto echo = xbr::make<fakehost::Listener>(
        *xbr::query<xbr::ISubject>(list->editor().findParameter(xbr::toText("songArtist"))));
    echo->hook = [&](const auto&) { fakehost::set(list->editor(), "songTitle", xbr::textValue("echo")); };
    list->model().setFocus(1);
    EXPECT_EQ(record(0).songTitle + record(1).songTitle, "ab");
}

TEST_F(TrackListTest, APreparedModeHoldsForTheTracksThatAreThere) {
    add({"file:///m/a.wav"});
    EXPECT_EQ(record(0).albumTitle, "a");
    list->prepareMode(UploadMode::kAlbum);
    add({"file:///m/b.wav"});
    EXPECT_EQ(record(0).albumTitle, "");
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
    const auto removed = xbr::Ref<TrackItem>::share(&track(0));
    list->removeAll();
    list->setCurrentUploadItem(nullptr);
    EXPECT_FALSE(removed->uploading) << "it may be added again";
}

} // namespace

} // namespace brindlex
