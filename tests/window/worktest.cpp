// The main job, done with mouse and keyboard, and what is said when it does not come about.

#include "host/app/publishing/publishing.h"
#include "host/app/window/dialogs/progressindicator.h"
#include "host/app/window/dialogs/viewdialog.h"
#include "host/app/window/panels/gadgetdock.h"
#include "host/app/window/panels/panelnotices.h"
#include "tests/window/fixture.h"

namespace xbr::host::tests {

TEST_F(WindowTest, aReleaseIsMadeFromDroppedFilesToTheService) {
    open({});
    signIn();
    ASSERT_TRUE(drop(*trackList().viewport(), stage.songs()));
    ASSERT_TRUE(areTracks(3));
    selectRows(trackList(), {0, 1});
    type(window(), "songArtist", "Both");

    // To an album and back: the release's fields are the first track's, then each track's own again.
    selectRows(trackList(), {2});
    click(window(), "album");
    type(window(), "albumTitle", "Night Drive");
    type(window(), "albumArtist", "The Lamps");
    selectRows(trackList(), {0});
    EXPECT_EQ(text("albumTitle"), "Night Drive");
    click(window(), "singles");
    EXPECT_EQ(text("albumTitle"), text("songTitle"));
    click(window(), "album");
    EXPECT_EQ(text("albumTitle"), "Night Drive");

    // The third has no artist: that is told before bytes go, and the field is shown; then the service says
    // so.
    {
        const auto showing = answer("Show");
        click(window(), "upload");
        EXPECT_EQ(stage.arrived(), 0U);
        EXPECT_EQ(window().focusWidget()->objectName(), "songArtist");
    }
    const auto sending = answer("Send Anyway");
    click(window(), "upload");
    EXPECT_TRUE(statusSays("because details are missing: song artist"));
    EXPECT_NE(states().find("Missing Information"), std::string::npos);
    selectRows(trackList(), {2});
    EXPECT_TRUE(isShown("songArtistMark"));
    EXPECT_EQ(stage.arrived(), 0U);

    type(window(), "songArtist", "The Lamps");
    EXPECT_FALSE(isShown("songArtistMark"));
    ASSERT_TRUE(waitFor([&] { return window().findChild<QPushButton*>("upload")->isEnabled(); }));
    click(window(), "upload");
    ASSERT_TRUE(statesBecome("Done|Done|Done"));
    EXPECT_EQ(stage.arrived(), 1U);
    EXPECT_TRUE(statusSays("Published the album “Night Drive” with 3 songs."));
    click(window(), "disconnect");
    EXPECT_TRUE(waitFor([&] { return isShown("connect"); }));
}

TEST_F(WindowTest, publishHandsOverWhatTheUserWroteAndRendersWhatIsNotTaken) {
    std::vector<std::string> songs = stage.songs();
    songs.push_back(stage.renderedSong("Closing.aiff"));
    open(songs);
    EXPECT_EQ(song(0, SongListModel::kTitle), "Opening") << "in the order of their numbers";
    EXPECT_EQ(song(0, SongListModel::kFormat), "WAV · 24 bit · 48 kHz");

    // A cell is edited in its place.
    songList().setCurrentIndex(songList().model()->index(0, SongListModel::kTitle));
    QTest::keyClick(&songList(), Qt::Key_F2);
    auto* field = songList().findChild<QLineEdit*>();
    ASSERT_NE(field, nullptr);
    field->selectAll();
    QTest::keyClicks(field, "Edited");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(waitFor([&] { return song(0, SongListModel::kTitle) == "Edited"; }));

    songList().clearSelection();
    click(window(), "publish");
    ASSERT_TRUE(areTracks(4));
    EXPECT_EQ(cell(trackList(), 0, 0), "Edited");
    EXPECT_EQ(cell(trackList(), 3, 1), "Closing.wav") << "rendered";

    // With a selection only that is published.
    selectRows(songList(), {1, 2});
    EXPECT_TRUE(choose(window(), "Upload to Brindlex"));
    EXPECT_TRUE(areTracks(2));
    EXPECT_TRUE(statusSays("2 songs handed over"));
}

TEST_F(WindowTest, aFailedSongGoesAgainByThePanelsOwnButton) {
    openReady(stage.songs());
    click(window(), "singles");
    addFault(R"("status":500,"times":1)");
    click(window(), "upload");
    ASSERT_TRUE(statesBecome("Failed|Done|Done"));
    ASSERT_TRUE(statusSays("Published 2 of 3 songs."));
    click(window(), "upload");
    EXPECT_TRUE(statesBecome("Done|Done|Done"));
    EXPECT_TRUE(statusSays("Published 3 songs as singles."));
    EXPECT_EQ(stage.arrived(), 3U) << "each of them once";
}

class LongSongs : public WindowTest {
protected:
    LongSongs() : WindowTest(60) {} // seconds, as the system takes some megabytes at once
};

TEST_F(LongSongs, stopKeepsWhatArrivedAndTheRestGoesAgain) {
    openReady(stage.songs());
    click(window(), "singles");
    addFault(R"("delay_ms":1,"times":1)");
    addFault(R"("stall_after":100000,"stall_ms":60000,"times":1)");
    click(window(), "upload");
    ASSERT_TRUE(waitFor([&] { return stage.arrived() == 1 && states().ends_with("%|") && isShown("stop"); }));
    click(window(), "stop");
    EXPECT_TRUE(statusSays("Stopped. 1 of 3 songs are published."));
    EXPECT_EQ(states(), "Done|Failed|");
    EXPECT_EQ(stage.arrived(), 1U);
    click(window(), "tryAgain");
    EXPECT_TRUE(statesBecome("Done|Done|Done"));
    EXPECT_EQ(stage.arrived(), 3U) << "each of them once";
}

TEST_F(WindowTest, publishingInOneGoEndsAtEveryStageAndWaitsForTheAccount) {
    stage.setVisit(Stage::Visit::kGoAway);
    open({});
    Publishing& publishing = window().docks().front()->notices()->publishing();
    ReleaseWish wish;
    wish.mode = ReleaseMode::kAlbum;
    wish.albumTitle = wish.albumArtist = "Lights";
    wish.genre = "aMBIENT";
    wish.songs = {{stage.untaggedSong("Short.wav"), "Tide", "Ann", {}, 0}};
    const auto publish = [&] {
        std::vector<SongFile> files;
        for (const SongWish& each : wish.songs) {
            files.push_back(readSongFile(each.path));
        }
        const PublishEntry entry = findPublishEntries().front();
        publishing.publish(entry, publishing.plan(entry, wish, files));
    };
    using Act = std::function<bool(QDialog&)>;
    const Act stop = [&](QDialog&) {
        publishing.stop();
        return true;
    };
    const Act cancel = [](QDialog& dialog) {
        dialog.reject();
        return true;
    };
    publish();
    publishing.stop();
    EXPECT_TRUE(statusSays("Stopped. Nothing was sent."));
    {
        const auto cancelling = inDialog<ViewDialogFrame>(cancel);
        publish();
        EXPECT_TRUE(statusSays("Not signed in: the sign-in was given up. Nothing was sent."));
    }
    {
        const auto stopping = inDialog<ViewDialogFrame>(stop);
        publish();
        EXPECT_TRUE(statusSays("Stopped. Nothing was sent."));
    }
    stage.setVisit(Stage::Visit::kAllow);
    stage.service().addFault(R"({"path":"/api/frontstage/account","delay_ms":300})");
    publish();
    EXPECT_TRUE(statusSays("Published the album “Lights” with one song."));
    wish.songs.push_back({stage.untaggedSong("Long.wav", 1U << 30U), "Quay", "Ann", {}, 0});
    for (const Act& act : {stop, cancel}) {
        publishing.uploadAsked();
        EXPECT_TRUE(statusSays("Nothing waits to be sent."));
        const auto acting = inDialog<ProgressSheet>(act);
        publish();
        EXPECT_TRUE(statusSays("Stopped. "));
    }
    EXPECT_EQ(stage.arrived(), 1U);
}

TEST_F(WindowTest, anUploadThatCanDoNothingSaysWhyAndLeadsThere) {
    const auto reason = [this](const char* sentence) {
        return waitFor([&] {
            return window().findChild<QLabel*>("uploadReason")->accessibleName().contains(sentence) &&
                   window().findChild<QWidget*>("upload")->toolTip().contains(sentence);
        });
    };
    open({stage.untaggedSong("Demo take 4.wav")});
    EXPECT_TRUE(reason("Hand over songs first."));
    click(window(), "publish");
    EXPECT_TRUE(statusSays("1 of 1 song lacks details that the service needs. “Demo take 4”: "));
    EXPECT_TRUE(reason("Sign in first."));
    signIn();
    EXPECT_TRUE(reason("“Demo take 4” lacks: album artist, genre, song artist."));
    emit window().findChild<QLabel*>("uploadReason")->linkActivated("#");
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "albumArtist");
}

TEST_F(WindowTest, aSignInThatComesToNothingSaysWhyAndWorksAgain) {
    /// Waits until the dialog says a thing, and gives it up; false when it ended without.
    const auto dialogSays = [this](const char* part) {
        bool isTold = false;
        const auto act = inDialog<QDialog>([&](QDialog& dialog) {
            const auto* notice = dialog.findChild<QLabel*>("notice");
            isTold = notice && notice->isVisible() && notice->text().contains(part);
            if (isTold) {
                QTest::keyClick(&dialog, Qt::Key_Escape);
            }
            return isTold;
        });
        click(window(), "connect");
        return isTold;
    };
    stage.configure("");
    open({});
    click(window(), "connect"); // no dialog waits in vain
    EXPECT_TRUE(statusSays("is not set up: "));
    EXPECT_TRUE(statusSays("services.ini"));

    stage.configure(stage.service().settings());
    stage.service().addFault(R"({"path":"/oauth/token","status":500})");
    click(window(), "connect");
    EXPECT_TRUE(statusSays("Not signed in: the service did not accept it."));

    QTest::qWait(50); // the panel tells itself, too
    stage.setVisit(Stage::Visit::kDeny);
    EXPECT_TRUE(dialogSays("without a permission")) << "who denies may think better of it";
    EXPECT_TRUE(statusSays("the sign-in was given up"));
    EXPECT_TRUE(isShown("connect"));

    stage.setVisit(Stage::Visit::kGoAway, "sleep 0.3; exit 1"); // a browser that fails too late to matter
    {
        const auto cancelling = inDialog<QDialog>([](QDialog& dialog) {
            dialog.reject();
            return true;
        });
        click(window(), "connect");
    }
    QTest::qWait(1000);
    EXPECT_TRUE(statusSays("the sign-in was given up"));

    stage.setVisit(Stage::Visit::kAllow);
    signIn();
    click(window(), "disconnect");
    EXPECT_TRUE(statusSays("Signed out."));
    QTest::qWait(50);
    stage.stopService();
    stage.setVisit(Stage::Visit::kGoAway);
    EXPECT_TRUE(dialogSays("cannot be reached"));
}

TEST_F(WindowTest, theEventLoopGoesOnWhileTheKeyringDoesNotAnswer) {
    int turns = 0;
    const auto counting = inDialog<QDialog>([&turns](const QDialog& dialog) {
        turns += dialog.objectName() == "keyringSheet" ? 1 : 0;
        return false;
    });
    stage.silenceSessionBus();
    const std::pair<std::function<void()>, const char*> steps[] = {
        {[this] { stage.open(); }, "The keyring does not answer: the stored sign-in cannot be read."},
        {[this] { click(window(), "connect"); },
         "Signed in as Mara Lindqvist, until the program ends: the keyring does not answer."},
        {[this] { click(window(), "disconnect"); },
         "The keyring does not answer: the stored sign-in may still be there."}};
    for (const auto& [act, sentence] : steps) {
        turns = 0;
        act();
        EXPECT_TRUE(statusSays(sentence));
        EXPECT_GT(turns, 5) << sentence; // of hundreds, when the machine has nothing else to do
    }
}

TEST_F(WindowTest, withoutAModuleSongsAreListedNonetheless) {
    stage.open(stage.songs(), stage.path("none.so"));
    EXPECT_TRUE(statusSays("Songs cannot be published."));
    EXPECT_TRUE(waitFor([&] { return !song(2, SongListModel::kLength).empty(); }));
    EXPECT_FALSE(isShown("publish"));
    EXPECT_TRUE(window().docks().empty());
}

} // namespace xbr::host::tests
