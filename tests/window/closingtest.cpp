// The window is closed in moments that suit nobody, and comes back as it was.

#include "host/app/window/dialogs/progressindicator.h"
#include "host/app/window/dialogs/viewdialog.h"
#include "tests/fixtures/testfolder.h"
#include "tests/window/fixture.h"

#include <filesystem>

namespace xbr::host::tests {

namespace {

class Closing : public WindowTest {
protected:
    /// Ends the window from within the dialog that a button opens.
    template <class Dialog>
    void endInside(const char* button) {
        bool wasInside = false;
        const auto act = inDialog<Dialog>([&](Dialog&) {
            wasInside = true;
            window().end();
            return true;
        });
        click(window(), button);
        EXPECT_TRUE(wasInside);
        EXPECT_FALSE(window().isVisible());
        EXPECT_TRUE(stage.host().session().activity().isEmpty());
        stage.close();
        EXPECT_TRUE(std::filesystem::is_empty(stage.path("tmp")));
    }
};

} // namespace

TEST_F(Closing, whileAnUploadRunsAsksFirst) {
    openReady(stage.songs());
    addFault(R"("delay_ms":1500,"times":9)");
    makeAlbum();
    click(window(), "upload");
    ASSERT_TRUE(statusSays("Waiting for the service"));
    const auto keeping = answer("Keep Uploading");
    EXPECT_FALSE(window().close());
    EXPECT_TRUE(window().isVisible());
    ASSERT_TRUE(statesBecome("Done|Done|Done"));

    const auto replacing = answer("Replace");
    click(window(), "publish");
    makeAlbum();
    const auto again = answer("Publish Again");
    click(window(), "upload");
    ASSERT_TRUE(statusSays("Waiting for the service"));
    const auto stopping = answer("Stop and Quit");
    EXPECT_TRUE(window().close());
    stage.close();
    QTest::qWait(100);
    EXPECT_EQ(stage.arrived(), 1U) << "what was stopped did not arrive";
}

TEST_F(Closing, insideTheConnectDialogEndsItFirst) {
    stage.setVisit(Stage::Visit::kGoAway);
    open(stage.songs());
    endInside<ViewDialogFrame>("connect");
}

TEST_F(Closing, whileSongsArePackedCancelsThat) {
    auto songs = stage.songs();
    songs.push_back(stage.untaggedSong("Long.wav", 1U << 30U));
    openReady(songs);
    makeAlbum();
    const auto sending = answer("Send Anyway");
    endInside<ProgressSheet>("upload");
}

TEST_F(Closing, theLayoutIsRememberedAndHoldsNoSecret) {
    const auto lightness = [] { return QApplication::palette().color(QPalette::Window).lightness(); };
    open({});
    window().resize(1111, 666);
    window().docks().front()->hide();
    EXPECT_TRUE(choose(window(), "Dark"));
    EXPECT_TRUE(window().close());
    stage.close();
    open({});
    EXPECT_EQ(window().size(), QSize(1111, 666));
    EXPECT_FALSE(window().docks().front()->isVisible());
    EXPECT_LT(lightness(), 128);
    EXPECT_TRUE(choose(window(), "Light"));
    EXPECT_GT(lightness(), 128);
    EXPECT_TRUE(choose(window(), "Reset Layout"));
    EXPECT_TRUE(window().docks().front()->isVisible());
    const std::string all = readFile(stage.path("home/config/xbrhost/window.ini"));
    EXPECT_NE(all.find("appearance"), std::string::npos);
    EXPECT_EQ(all.find("secret"), std::string::npos);
}

} // namespace xbr::host::tests
