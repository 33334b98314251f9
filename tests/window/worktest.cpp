// The main job, done with mouse and keyboard.

#include "tests/window/fixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace xbr::host::tests {

namespace {

std::string text(QWidget& window, const char* field) {
    const auto* found = window.findChild<QLineEdit*>(field);
    return found ? found->text().toStdString() : "(none)";
}

} // namespace

TEST_F(WindowTest, aReleaseIsMadeFromDroppedFilesToTheService) {
    open({});
    signIn();
    ASSERT_TRUE(drop(*trackList().viewport(), stage.songs()));
    ASSERT_TRUE(waitFor([&] { return trackList().model()->rowCount() == 3; }));

    // Two at once.
    selectRows(trackList(), {0, 1});
    type(window(), "songArtist", "Both");
    selectRows(trackList(), {0});
    EXPECT_EQ(text(window(), "songArtist"), "Both");
    selectRows(trackList(), {2});
    EXPECT_NE(text(window(), "songArtist"), "Both");

    // To an album and back: the release's fields are the first track's, then each track's own again.
    click(window(), "album");
    type(window(), "albumTitle", "Night Drive");
    type(window(), "albumArtist", "The Lamps");
    selectRows(trackList(), {0});
    EXPECT_EQ(text(window(), "albumTitle"), "Night Drive");
    click(window(), "singles");
    EXPECT_EQ(text(window(), "albumTitle"), text(window(), "songTitle"));
    click(window(), "album");
    EXPECT_EQ(text(window(), "albumTitle"), "Night Drive");

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
    ASSERT_TRUE(waitFor([&] { return states().find("Missing Information") != std::string::npos; }))
        << states();
    EXPECT_TRUE(statusSays("because details are missing: song artist")) << stage.status();
    selectRows(trackList(), {2});
    EXPECT_TRUE(find(window(), "songArtistMark"));
    EXPECT_EQ(stage.arrived(), 0U);

    type(window(), "songArtist", "The Lamps");
    EXPECT_FALSE(window().findChild<QWidget*>("songArtistMark")->isVisible());
    ASSERT_TRUE(waitFor([&] { return window().findChild<QPushButton*>("upload")->isEnabled(); }));
    click(window(), "upload");
    ASSERT_TRUE(waitFor([&] { return states() == "Done|Done|Done"; })) << states();
    EXPECT_EQ(stage.arrived(), 1U);
    EXPECT_TRUE(statusSays("Published the album “Night Drive” with 3 songs.")) << stage.status();

    click(window(), "disconnect");
    EXPECT_TRUE(waitFor([&] { return window().findChild<QPushButton*>("connect")->isVisible(); }));
}

TEST_F(WindowTest, publishHandsOverWhatTheUserWroteAndRendersWhatIsNotTaken) {
    std::vector<std::string> songs = stage.songs();
    songs.push_back(stage.renderedSong("Closing.aiff"));
    open(songs);
    EXPECT_EQ(cell(songList(), 0, SongListModel::kTitle), "Opening") << "in the order of their numbers";
    EXPECT_EQ(cell(songList(), 0, SongListModel::kFormat), "WAV · 24 bit · 48 kHz");

    // A cell is edited in its place.
    songList().setCurrentIndex(songList().model()->index(0, SongListModel::kTitle));
    QTest::keyClick(&songList(), Qt::Key_F2);
    auto* field = songList().findChild<QLineEdit*>();
    ASSERT_NE(field, nullptr);
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, "Edited");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(waitFor([&] { return cell(songList(), 0, SongListModel::kTitle) == "Edited"; }));

    songList().clearSelection();
    click(window(), "publish");
    ASSERT_TRUE(waitFor([&] { return trackList().model()->rowCount() == 4; }));
    EXPECT_EQ(cell(trackList(), 0, 0), "Edited");
    EXPECT_EQ(cell(trackList(), 3, 1), "Closing.wav") << "rendered";

    // With a selection only that is published.
    selectRows(songList(), {1, 2});
    EXPECT_TRUE(choose(window(), "Upload to Brindlex"));
    EXPECT_TRUE(waitFor([&] { return trackList().model()->rowCount() == 2; }));
    EXPECT_TRUE(statusSays("2 songs handed over"));
}

TEST_F(WindowTest, aProblemOfTheServiceIsToldInPlainWords) {
    struct Case {
        const char* fault;
        const char* status;
        const char* states;
    };
    const Case cases[] = {
        {R"({"path":"/api/frontstage/release_ingestion","status":500,"times":3})",
         "The service has a fault (500)", "Failed|Failed|Failed"},
        {R"({"path":"/api/frontstage/release_ingestion","status":401,"times":3})",
         "does not accept the stored sign-in", ""},
    };
    openReady(stage.songs());
    for (const Case& one : cases) {
        const auto replacing = answer("Replace"); // the songs of the last upload
        click(window(), "publish");
        click(window(), "singles");
        stage.service().addFault(one.fault);
        click(window(), "upload");
        EXPECT_TRUE(statusSays(one.status)) << stage.status();
        EXPECT_EQ(*one.states ? states() : "", one.states);
        stage.service().clearFaults();
    }
}

TEST_F(WindowTest, whatTheModuleKeepsSilentAboutIsTold) {
    openReady(stage.songs());
    std::filesystem::remove(stage.songs().back()); // the first by its number
    click(window(), "singles");
    click(window(), "upload");
    EXPECT_TRUE(statusSays("is no longer there.")) << stage.status();
    EXPECT_EQ(stage.arrived(), 0U);

    click(window(), "disconnect");
    EXPECT_TRUE(statusSays("Signed out."));
    QTest::qWait(50); // the panel tells itself, too
    stage.stopService();
    bool isTold = false;
    const auto act = whenever([&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        const auto* notice = dialog ? dialog->findChild<QLabel*>("notice") : nullptr;
        isTold = notice && notice->isVisible() && notice->text().contains("cannot be reached");
        if (isTold) {
            dialog->reject();
        }
        return isTold;
    });
    stage.setVisit(Stage::Visit::kGoAway);
    click(window(), "connect");
    EXPECT_TRUE(isTold);
}

TEST_F(WindowTest, aSignInThatComesToNothingSaysWhy) {
    open({});
    stage.service().addFault(R"({"path":"/oauth/token","status":500})");
    click(window(), "connect");
    EXPECT_TRUE(statusSays("Not signed in: the service did not accept it.")) << stage.status();

    QTest::qWait(50);
    // Who denies may think better of it: the dialog stays.
    stage.setVisit(Stage::Visit::kDeny);
    bool isTold = false;
    const auto act = whenever([&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        const auto* notice = dialog ? dialog->findChild<QLabel*>("notice") : nullptr;
        isTold = notice && notice->isVisible() && notice->text().contains("without a permission");
        if (isTold) {
            dialog->reject();
        }
        return isTold;
    });
    click(window(), "connect");
    EXPECT_TRUE(isTold);
    EXPECT_TRUE(window().findChild<QPushButton*>("connect")->isVisible());
}

TEST_F(WindowTest, missingSettingsAreNamedAndNoDialogWaitsInVain) {
    stage.configure("");
    open({});
    click(window(), "connect");
    EXPECT_TRUE(statusSays("is not set up: "));
    EXPECT_TRUE(statusSays("services.ini"));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);

    stage.configure(stage.service().origin());
    signIn();
}

TEST_F(WindowTest, withoutAModuleSongsAreListedNonetheless) {
    stage.open(stage.songs(), stage.path("none.so"));
    EXPECT_TRUE(statusSays("Songs cannot be published."));
    EXPECT_TRUE(waitFor([&] { return !cell(songList(), 2, SongListModel::kLength).empty(); }));
    EXPECT_FALSE(window().findChild<QWidget*>("publish")->isVisible());
    EXPECT_TRUE(window().docks().empty());
}

} // namespace xbr::host::tests
