// The window is closed, or the module goes, in moments that suit nobody.

#include "host/app/window/dialogs/progressindicator.h"
#include "host/app/window/dialogs/viewdialog.h"
#include "tests/window/fixture.h"

#include <QCloseEvent>
#include <QTest>

#include <filesystem>
#include <fstream>

namespace xbr::host::tests {

TEST_F(WindowTest, closingWhileAnUploadRunsAsksFirst) {
    openReady(stage.songs());
    stage.service().addFault(R"({"path":"/api/frontstage/release_ingestion","delay_ms":1500,"times":9})");
    makeAlbum();
    click(window(), "upload");
    ASSERT_TRUE(statusSays("Waiting for the service"));

    const auto keeping = answer("Keep Uploading");
    EXPECT_FALSE(window().close());
    EXPECT_TRUE(window().isVisible());
    ASSERT_TRUE(waitFor([&] { return states() == "Done|Done|Done"; })) << states();

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

TEST_F(WindowTest, closingInsideTheConnectDialogEndsItFirst) {
    stage.setVisit(Stage::Visit::kGoAway);
    open(stage.songs());
    bool wasInDialog = false;
    const auto act = whenever([&] {
        if (!qobject_cast<ViewDialogFrame*>(QApplication::activeModalWidget())) {
            return false;
        }
        wasInDialog = true;
        window().end();
        return true;
    });
    click(window(), "connect");
    EXPECT_TRUE(wasInDialog);
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(stage.host().session().activity().isEmpty());
    stage.close();
}

TEST_F(WindowTest, closingWhileSongsArePackedCancelsThat) {
    auto songs = stage.songs();
    songs.push_back(stage.untaggedSong("Long.wav", 1U << 30U));
    openReady(songs);
    makeAlbum();
    const auto sending = answer("Send Anyway");
    bool wasPacking = false;
    const auto act = whenever([&] {
        auto* sheet = qobject_cast<ProgressSheet*>(QApplication::activeModalWidget());
        wasPacking = sheet != nullptr;
        if (sheet) {
            window().end();
        }
        return wasPacking;
    });
    click(window(), "upload");
    EXPECT_TRUE(wasPacking);
    EXPECT_FALSE(window().isVisible());
    EXPECT_TRUE(stage.host().session().activity().isEmpty());
    stage.close();
    EXPECT_TRUE(std::filesystem::is_empty(stage.path("tmp")));
}

TEST_F(WindowTest, theDialogsFrameAndKeysCloseItAndConnectWorksAgain) {
    stage.setVisit(Stage::Visit::kGoAway);
    open({});
    const auto act = whenever([] {
        auto* frame = qobject_cast<ViewDialogFrame*>(QApplication::activeModalWidget());
        if (frame) {
            QTest::keyClick(frame, Qt::Key_Escape);
        }
        return frame != nullptr;
    });
    click(window(), "connect");
    EXPECT_TRUE(statusSays("the sign-in was given up"));
    stage.setVisit(Stage::Visit::kAllow);
    signIn();
}

TEST_F(WindowTest, itOpensAgainAndAgainInOneProcess) {
    for (int i = 0; i < 5; ++i) {
        open(stage.songs());
        click(window(), "publish");
        EXPECT_TRUE(window().close());
        stage.close();
    }
}

TEST_F(WindowTest, theLayoutIsRememberedAndHoldsNoSecret) {
    open({});
    window().resize(1111, 666);
    window().docks().front()->hide();
    EXPECT_TRUE(choose(window(), "Dark"));
    EXPECT_TRUE(window().close());
    stage.close();
    open({});
    EXPECT_EQ(window().size(), QSize(1111, 666));
    EXPECT_FALSE(window().docks().front()->isVisible());
    EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 128);
    EXPECT_TRUE(choose(window(), "Light"));
    EXPECT_GT(QApplication::palette().color(QPalette::Window).lightness(), 128);
    EXPECT_TRUE(choose(window(), "Reset Layout"));
    EXPECT_TRUE(window().docks().front()->isVisible());
    for (const char* file : {"home/config/xbrhost/window.ini"}) {
        std::ifstream stream(stage.path(file));
        const std::string all((std::istreambuf_iterator<char>(stream)), {});
        EXPECT_NE(all.find("appearance"), std::string::npos);
        EXPECT_EQ(all.find("secret"), std::string::npos);
    }
}

} // namespace xbr::host::tests
