// An upload is stopped, tried again, and says why.

#include "tests/window/fixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace xbr::host::tests {

TEST_F(WindowTest, aFailedSongGoesAgainByTheButtonOfTheNoticeAndOfThePanel) {
    openReady(stage.songs());
    click(window(), "singles");
    for (const char* button : {"tryAgain", "upload"}) {
        stage.service().addFault(R"({"path":"/api/frontstage/release_ingestion","status":500,"times":1})");
        const auto replacing = answer("Replace");
        const auto again = answer("Publish Again");
        if (states() != "||") {
            click(window(), "publish");
            click(window(), "singles");
        }
        click(window(), "upload");
        ASSERT_TRUE(waitFor([&] { return states() == "Failed|Done|Done"; })) << states();
        ASSERT_TRUE(statusSays("Published 2 of 3 songs."));
        click(window(), button);
        EXPECT_TRUE(waitFor([&] { return states() == "Done|Done|Done"; })) << button << states();
        EXPECT_TRUE(statusSays("Published 3 songs as singles."));
    }
}

class LongSongs : public WindowTest {
protected:
    LongSongs() : WindowTest(60) {} // seconds, as the system takes some megabytes at once
};

TEST_F(LongSongs, stopKeepsWhatArrivedAndTheRestGoesAgain) {
    openReady(stage.songs());
    click(window(), "singles");
    stage.service().addFault(R"({"path":"/api/frontstage/release_ingestion","delay_ms":1,"times":1})");
    stage.service().addFault(
        R"({"path":"/api/frontstage/release_ingestion","stall_after":100000,"stall_ms":60000,"times":1})");
    click(window(), "upload");
    ASSERT_TRUE(waitFor([&] {
        return stage.arrived() == 1 && states().ends_with("%|") &&
               window().findChild<QWidget*>("stop")->isVisible();
    })) << states();
    click(window(), "stop");
    EXPECT_TRUE(statusSays("Stopped. 1 of 3 songs are published.")) << stage.status();
    EXPECT_EQ(states(), "Done|Failed|");
    EXPECT_EQ(stage.arrived(), 1U);
    click(window(), "tryAgain");
    EXPECT_TRUE(waitFor([&] { return states() == "Done|Done|Done"; })) << states();
    EXPECT_EQ(stage.arrived(), 3U) << "each of them once";
}

TEST_F(WindowTest, anUploadThatCanDoNothingSaysWhyAndLeadsThere) {
    const auto reason = [this](const char* sentence) {
        return waitFor([&] {
            const auto* line = window().findChild<QLabel*>("uploadReason");
            const auto* button = window().findChild<QWidget*>("upload");
            return line->accessibleName().contains(sentence) && button->toolTip().contains(sentence);
        });
    };
    open({stage.untaggedSong("Demo take 4.wav")});
    EXPECT_TRUE(reason("Hand over songs first."));
    click(window(), "publish");
    EXPECT_TRUE(statusSays("1 of 1 song lacks details that the service needs. “Demo take 4”: "))
        << stage.status();
    EXPECT_TRUE(reason("Sign in first."));
    signIn();
    EXPECT_TRUE(reason("“Demo take 4” lacks: album artist, genre, song artist."));
    emit window().findChild<QLabel*>("uploadReason")->linkActivated("#");
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "albumArtist");
}

} // namespace xbr::host::tests
