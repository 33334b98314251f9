// The order of the list, and what is wrong with songs before they are handed over.

#include "tests/window/fixture.h"

#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>

#include <memory>

namespace xbr::host::tests {

namespace {

class SongList : public WindowTest {
protected:
    SongList() {
        for (const char* name : {"03 C.wav", "01 A.wav", "02 B.wav"}) {
            m_files.push_back(stage.untaggedSong(name));
        }
        open(m_files);
        EXPECT_TRUE(waitFor([this] { return order() == "1 A, 2 B, 3 C"; })) << order();
    }

    std::string order() {
        std::string all;
        for (int row = 0; row < songList().model()->rowCount(); ++row) {
            all += (row > 0 ? ", " : "") + cell(songList(), row, SongListModel::kNumber) + " " +
                   cell(songList(), row, SongListModel::kTitle);
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
        QDragEnterEvent enter(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(songList().viewport(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent dropped(place, Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(songList().viewport(), &dropped);
    }

    std::vector<std::string> m_files;
};

} // namespace

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
    EXPECT_EQ(cell(songList(), 0, SongListModel::kMark), "!");
    EXPECT_NE(genre.data(SongListModel::kProblemRole).toString().indexOf("Nearest: "), -1);
    EXPECT_EQ(cell(songList(), 0, SongListModel::kGenre), "Tecno") << "kept as typed";
    QTest::keyClick(&window(), Qt::Key_F8);
    ASSERT_NE(songList().findChild<QLineEdit*>(), nullptr);
    EXPECT_EQ(songList().currentIndex(), genre);
}

} // namespace xbr::host::tests
