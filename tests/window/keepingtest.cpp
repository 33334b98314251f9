// Nothing that was typed is lost, and nothing is sent twice by mistake.

#include "tests/window/fixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include <filesystem>

namespace xbr::host::tests {

namespace {

class Keeping : public WindowTest {
protected:
    std::string field(const char* name) { return window().findChild<QLineEdit*>(name)->text().toStdString(); }
    std::string label(const char* name) { return window().findChild<QLabel*>(name)->text().toStdString(); }

    void edit(int row, const char* name, const QString& text) {
        selectRows(trackList(), {row});
        type(window(), name, text);
    }
};

} // namespace

TEST_F(Keeping, whatIsRemovedOrChangedInThePanelComesBack) {
    openReady(stage.songs());
    click(window(), "singles");
    edit(1, "songTitle", "Typed");
    click(window(), "removeAll");
    EXPECT_TRUE(statusSays("3 songs removed from the panel."));
    EXPECT_EQ(trackList().model()->rowCount(), 0);
    click(window(), "undo");
    ASSERT_TRUE(waitFor([&] { return trackList().model()->rowCount() == 3; }));
    EXPECT_EQ(cell(trackList(), 1, 0), "Typed");

    // Several at once: it is said before, and can be taken back.
    std::vector<std::string> artists;
    for (int row : {0, 1, 2}) {
        selectRows(trackList(), {row});
        artists.push_back(field("songArtist"));
    }
    selectRows(trackList(), {0, 1});
    EXPECT_TRUE(
        waitFor([&] { return label("editorHeader") == "2 songs selected: an edit changes all of them."; }));
    EXPECT_EQ(label("songTitleDiffers"), "≠ 2 values");
    type(window(), "songArtist", "Both");
    EXPECT_TRUE(statusSays("Song artist changed in 2 songs."));
    EXPECT_TRUE(waitFor([&] { return label("songArtistDiffers") == "same"; }));
    EXPECT_TRUE(choose(window(), "Undo"));
    for (int row : {0, 1, 2}) {
        selectRows(trackList(), {row});
        EXPECT_EQ(field("songArtist"), artists[static_cast<std::size_t>(row)]);
    }
    selectRows(trackList(), {0});
    EXPECT_TRUE(choose(window(), "Redo"));
    EXPECT_EQ(field("songArtist"), "Both");
}

TEST_F(Keeping, editsAreNotReplacedOrLeftWithoutAQuestion) {
    openReady(stage.songs());
    edit(0, "songTitle", "Typed");
    {
        const auto keeping = answer("Keep");
        click(window(), "publish");
        EXPECT_EQ(cell(trackList(), 0, 0), "Typed");
    }
    {
        const auto keeping = answer("Keep Editing");
        EXPECT_FALSE(window().close());
        EXPECT_EQ(cell(trackList(), 0, 0), "Typed");
    }
    {
        const auto replacing = answer("Replace");
        click(window(), "publish");
        EXPECT_NE(cell(trackList(), 0, 0), "Typed");
    }
    EXPECT_TRUE(window().close()) << "nothing is lost, nothing is asked";
}

TEST_F(Keeping, theListComesBackAsItWas) {
    open(stage.songs());
    const auto index = songList().model()->index(1, SongListModel::kTitle);
    songList().model()->setData(index, "Typed");
    selectRows(songList(), {2});
    EXPECT_TRUE(choose(window(), "Remove"));
    EXPECT_TRUE(statusSays("1 song removed from the list; the files stay."));
    EXPECT_TRUE(choose(window(), "Undo"));
    EXPECT_EQ(songList().model()->rowCount(), 3);
    EXPECT_TRUE(window().close());
    stage.close();
    const std::string gone = stage.songs().back();
    std::filesystem::rename(gone, gone + ".away");
    stage.open({});
    EXPECT_EQ(songList().model()->rowCount(), 3);
    EXPECT_EQ(cell(songList(), 1, SongListModel::kTitle), "Typed");
    int marked = 0;
    EXPECT_TRUE(waitFor([&] {
        marked = 0;
        for (int row = 0; row < 3; ++row) {
            marked += cell(songList(), row, SongListModel::kMark) == "!" ? 1 : 0;
        }
        return marked == 1;
    })) << marked;
}

TEST_F(Keeping, aSongIsNotPublishedTwiceByMistake) {
    openReady({stage.songs().front()});
    click(window(), "upload");
    ASSERT_TRUE(statusSays("Published “"));
    EXPECT_TRUE(waitFor([&] { return cell(songList(), 0, SongListModel::kMark) == "✓"; }));
    std::filesystem::rename(stage.songs().front(), stage.path("Renamed.mp3"));
    selectRows(songList(), {0});
    EXPECT_TRUE(choose(window(), "Remove"));
    EXPECT_TRUE(window().close());
    stage.close();
    openReady({stage.path("Renamed.mp3")});
    for (const char* choice : {"Cancel", "Publish Again"}) {
        const auto answering = answer(choice);
        click(window(), "upload");
        EXPECT_TRUE(waitFor([&] { return stage.arrived() == (choice[0] == 'C' ? 1U : 2U); })) << choice;
    }
}

} // namespace xbr::host::tests
