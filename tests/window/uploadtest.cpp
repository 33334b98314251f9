// An upload is stopped, tried again, and says why.

#include "tests/window/fixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace xbr::host::tests {

namespace {

class LongSongs : public WindowTest {
protected:
    LongSongs() : WindowTest(90) {}
};

std::string label(QWidget& window, const char* name) {
    const auto* found = window.findChild<QLabel*>(name);
    return found ? found->text().toStdString() : "(none)";
}

bool holds(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

} // namespace

TEST_F(LongSongs, stopKeepsWhatArrivedAndTryAgainSendsTheRest) {
    static constexpr int kLast = 1;
    open({});
    signIn();
    ASSERT_TRUE(drop(*trackList().viewport(), {stage.songs()[0], stage.songs()[1]}));
    click(window(), "singles");
    stage.service().addFault( // the second is long enough for it
        R"({"path":"/api/frontstage/release_ingestion","stall_after":2500000,"stall_ms":60000,"times":3})");
    click(window(), "upload");
    ASSERT_TRUE(waitFor([&] { return holds(cell(trackList(), kLast, 2), "%"); }, 60000)) << states();
    EXPECT_TRUE(waitFor([&] { return holds(label(window(), "sendingDetails"), "/s · "); }));
    EXPECT_TRUE(holds(label(window(), "sendingDetails"), " MB")) << label(window(), "sendingDetails");
    EXPECT_TRUE(holds(label(window(), "sendingAll"), "All: "));

    // What is on its way cannot be changed.
    selectRows(trackList(), {kLast});
    EXPECT_TRUE(waitFor([&] { return !find(window(), "songTitle")->isEnabled(); }));
    EXPECT_TRUE(holds(label(window(), "editorHeader"), "is on its way and cannot be changed now."));
    EXPECT_TRUE(holds(label(window(), "uploadReason"), "An upload is running."));

    click(window(), "stop");
    ASSERT_TRUE(statusSays("Stopped. 1 of 2 songs are published. “")) << stage.status();
    EXPECT_TRUE(statusSays("and did not arrive.")) << stage.status();
    EXPECT_EQ(states(), "Done|Failed");
    EXPECT_EQ(stage.arrived(), 1U);
    EXPECT_TRUE(find(window(), "songTitle")->isEnabled());

    stage.service().clearFaults();
    click(window(), "tryAgain");
    ASSERT_TRUE(waitFor([&] { return states() == "Done|Done"; }, 60000)) << states();
    EXPECT_EQ(stage.arrived(), 2U);
    EXPECT_TRUE(statusSays("Published 2 songs as singles."));
}

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

    // With a complete song beside it, it is told before bytes go.
    ASSERT_TRUE(drop(*trackList().viewport(), {stage.songs().front()}));
    click(window(), "singles");
    EXPECT_TRUE(waitFor([&] { return find(window(), "upload")->isEnabled(); }));
    {
        const auto showing = answer("Show");
        click(window(), "upload");
        EXPECT_EQ(stage.arrived(), 0U);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "albumArtist");
    }
    const auto sending = answer("Send Anyway");
    click(window(), "upload");
    EXPECT_TRUE(waitFor([&] { return states() == "Missing Information|Done"; })) << states();
}

} // namespace xbr::host::tests
