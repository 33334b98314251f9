// The list of songs and the panel's tracks: nothing that was typed is lost, and nothing is sent twice by
// mistake.

#include "tests/window/fixture.h"

#include <QMimeData>

#include <filesystem>
#include <memory>

namespace xbr::host::tests {

namespace {

class Keeping : public WindowTest {
protected:
    std::vector<std::string> artists() {
        std::vector<std::string> all;
        for (int row : {0, 1, 2}) {
            selectRows(trackList(), {row});
            all.push_back(text("songArtist"));
        }
        return all;
    }
};

class SongList : public WindowTest {
protected:
    SongList() {
        open(
            {stage.untaggedSong("03 C.wav"), stage.untaggedSong("01 A.wav"), stage.untaggedSong("02 B.wav")});
        EXPECT_TRUE(waitFor([this] { return order() == "1 A, 2 B, 3 C"; })) << order();
    }

    std::string order() {
        std::string all;
        for (int row = 0; row < songList().model()->rowCount(); ++row) {
            all += (row > 0 ? ", " : "") + song(row, SongListModel::kNumber) + " " +
                   song(row, SongListModel::kTitle);
        }
        return all;
    }

    /// Drags rows to above or below another one.
    void drag(const std::vector<int>& rows, int target, bool isBelow) {
        QModelIndexList indexes;
        for (const int row : rows) {
            indexes.append(songList().model()->index(row, 1));
        }
        const std::unique_ptr<QMimeData> data(songList().model()->mimeData(indexes));
        const QRect cell = songList().visualRect(songList().model()->index(target, 1));
        const QPoint place(cell.center().x(), isBelow ? cell.bottom() - 1 : cell.top() + 1);
        drop(*songList().viewport(), *data, place, Qt::MoveAction);
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
    ASSERT_TRUE(areTracks(3));
    EXPECT_EQ(cell(trackList(), 1, 0), "Typed");

    // Several at once: it is said before, and can be taken back.
    const auto before = artists();
    selectRows(trackList(), {0, 1});
    EXPECT_TRUE(
        waitFor([&] { return text("editorHeader") == "2 songs selected: an edit changes all of them."; }));
    EXPECT_EQ(text("songTitleDiffers"), "≠ 2 values");
    type(window(), "songTitle", "One");
    EXPECT_TRUE(statusSays("Song title changed in 2 songs."));
    type(window(), "songArtist", "Both");
    EXPECT_TRUE(statusSays("Song artist changed in 2 songs."));
    EXPECT_TRUE(waitFor([&] { return text("songArtistDiffers") == "same"; }));
    EXPECT_TRUE(choose(window(), "Undo"));
    EXPECT_EQ(artists(), before);
    EXPECT_TRUE(choose(window(), "Redo"));
    EXPECT_EQ(artists(), (std::vector<std::string>{"Both", "Both", before[2]}));
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
    songList().model()->setData(songList().model()->index(1, SongListModel::kTitle), "Typed");
    selectRows(songList(), {2});
    EXPECT_TRUE(choose(window(), "Remove"));
    EXPECT_TRUE(statusSays("1 song removed from the list; the files stay."));
    EXPECT_TRUE(choose(window(), "Undo"));
    EXPECT_TRUE(window().close());
    stage.close();
    std::filesystem::rename(stage.songs().back(), stage.path("away"));
    stage.open({});
    EXPECT_EQ(songList().model()->rowCount(), 3);
    EXPECT_EQ(song(1, SongListModel::kTitle), "Typed");
    EXPECT_TRUE(waitFor([&] {
        return song(0, SongListModel::kMark) + song(1, SongListModel::kMark) +
                   song(2, SongListModel::kMark) ==
               "!";
    })) << "the one that is gone";
}

TEST_F(Keeping, aSongIsNotPublishedTwiceByMistake) {
    openReady({stage.songs().front()});
    click(window(), "upload");
    ASSERT_TRUE(statusSays("Published “"));
    EXPECT_TRUE(waitFor([&] { return song(0, SongListModel::kMark) == "✓"; }));
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

TEST_F(SongList, rowsAreMovedByKeyAndByDragAndNumbersFollow) {
    selectRows(songList(), {2});
    QTest::keyClick(&songList(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(order(), "1 A, 2 C, 3 B");
    drag({0}, 2, true);
    EXPECT_EQ(order(), "1 C, 2 B, 3 A");
    drag({1, 2}, 0, false);
    EXPECT_EQ(order(), "1 B, 2 A, 3 C");
    EXPECT_TRUE(choose(window(), "Undo"));
    EXPECT_EQ(order(), "1 C, 2 B, 3 A");

    // Numbers that do not count the places are the user's own.
    songList().model()->setData(songList().model()->index(0, SongListModel::kNumber), 7);
    drag({2}, 0, false);
    EXPECT_EQ(order(), "3 A, 7 C, 2 B");
}

TEST_F(SongList, anUnknownGenreIsSaidBeforeItIsHandedOverWithWhatMayBeMeant) {
    const auto genre = songList().model()->index(0, SongListModel::kGenre);
    songList().model()->setData(genre, "Tecno");
    EXPECT_EQ(song(0, SongListModel::kMark), "!");
    EXPECT_NE(genre.data(SongListModel::kProblemRole).toString().indexOf("Nearest: "), -1);
    EXPECT_EQ(song(0, SongListModel::kGenre), "Tecno") << "kept as typed";
    QTest::keyClick(&window(), Qt::Key_F8);
    ASSERT_NE(songList().findChild<QLineEdit*>(), nullptr);
    EXPECT_EQ(songList().currentIndex(), genre);
}

} // namespace xbr::host::tests
