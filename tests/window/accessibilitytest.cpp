// Whoever cannot use a mouse, or cannot see the window.

#include "tests/window/fixture.h"

#include <QAccessible>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include <set>

namespace xbr::host::tests {

namespace {

bool isControl(QAccessible::Role role) {
    static const std::set<QAccessible::Role> kControls{
        QAccessible::Button,       QAccessible::ButtonMenu,  QAccessible::ButtonDropDown,
        QAccessible::CheckBox,     QAccessible::ComboBox,    QAccessible::EditableText,
        QAccessible::Link,         QAccessible::List,        QAccessible::MenuItem,
        QAccessible::PageTab,      QAccessible::ProgressBar, QAccessible::RadioButton,
        QAccessible::ColumnHeader, QAccessible::SpinBox,     QAccessible::Table,
        QAccessible::Tree};
    return kControls.count(role) > 0;
}

/// Goes through everything that a screen reader reaches, and tells what cannot be told.
void walk(QAccessibleInterface& item, const std::string& way, std::vector<std::string>& faults,
          int& controls) {
    const QAccessible::State state = item.state();
    if (state.invisible) {
        return;
    }
    const std::string name = item.text(QAccessible::Name).toStdString();
    const std::string here = way + "/" + (item.object() ? item.object()->objectName().toStdString() : name);
    if (isControl(item.role()) || state.focusable) {
        ++controls;
        const bool isItem = item.role() == QAccessible::Cell || item.role() == QAccessible::TreeItem;
        if (name.empty() && !isItem) { // a cell may well be empty
            faults.push_back(here + " has no name");
        }
        if (item.role() == QAccessible::NoRole || item.role() == QAccessible::Client) {
            faults.push_back(here + " has no role");
        }
    }
    for (int i = 0; i < item.childCount(); ++i) {
        if (QAccessibleInterface* child = item.child(i)) {
            walk(*child, here, faults, controls);
        }
    }
}

std::string faultsOf(QWidget& window, int leastControls) {
    std::vector<std::string> faults;
    int controls = 0;
    walk(*QAccessible::queryAccessibleInterface(&window), "", faults, controls);
    if (controls < leastControls) {
        faults.push_back("only " + std::to_string(controls) + " controls were reached");
    }
    std::string all;
    for (const std::string& fault : faults) {
        all += fault + "\n";
    }
    return all;
}

/// The widgets that the tabulator reaches, in order, until it comes back.
std::vector<QWidget*> tabOrder(QWidget& window, QWidget& first) {
    std::vector<QWidget*> order;
    first.setFocus();
    static constexpr int kLimit = 200;
    for (int i = 0; i < kLimit; ++i) {
        QWidget* focus = QApplication::focusWidget();
        if (!focus || std::find(order.begin(), order.end(), focus) != order.end()) {
            break;
        }
        order.push_back(focus);
        QTest::keyClick(&window, Qt::Key_Tab);
    }
    return order;
}

} // namespace

TEST_F(WindowTest, everyControlHasANameAndARole) {
    open({});
    EXPECT_EQ(faultsOf(window(), 10), "") << "before the sign-in";
    window().addSongs(stage.songs());
    ASSERT_TRUE(waitFor([&] { return !cell(songList(), 2, SongListModel::kLength).empty(); }));
    click(window(), "publish");
    signIn();
    selectRows(trackList(), {0, 1});
    EXPECT_EQ(faultsOf(window(), 30), "") << "with tracks in the editor";

    window().findChild<QAction*>("about")->trigger();
    EXPECT_EQ(faultsOf(*QApplication::activeModalWidget(), 2), "") << "about";
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
}

TEST_F(WindowTest, theTabulatorReachesEverything) {
    openReady(stage.songs());
    selectRows(trackList(), {0});
    const auto order = tabOrder(window(), songList());
    ASSERT_GT(order.size(), 10U);
    for (const char* name :
         {"songs", "publish", "dismiss", "user", "disconnect", "singles", "tracks", "addTracks", "removeAll",
          "songTitle", "songArtist", "trackNumber", "albumTitle", "albumArtist", "primaryGenre", "upload"}) {
        const bool isReached = std::any_of(order.begin(), order.end(), [name](const QWidget* widget) {
            return widget->objectName() == name || widget->parentWidget()->objectName() == name;
        });
        EXPECT_TRUE(isReached) << name;
    }
}

TEST_F(WindowTest, everythingCanBeDoneFromTheMenusWithKeys) {
    open(stage.songs());
    std::set<QString> keys;
    for (QAction* top : window().menuBar()->actions()) {
        EXPECT_TRUE(top->text().contains('&')) << top->text().toStdString();
        for (const QAction* action : top->menu()->actions()) {
            const QString key = action->shortcut().toString();
            const bool isCommand = !action->isSeparator() && !action->menu();
            EXPECT_TRUE(!isCommand || !key.isEmpty()) << action->text().toStdString();
            EXPECT_TRUE(key.isEmpty() || keys.insert(key).second) << key.toStdString() << " means two things";
        }
    }
    songList().setFocus();
    QTest::keyClick(&window(), Qt::Key_F6);
    EXPECT_TRUE(window().docks().front()->isAncestorOf(QApplication::focusWidget()));
    QTest::keyClick(&window(), Qt::Key_F6); // the bar says how many songs were added
    EXPECT_TRUE(find(window(), "statusLine")->isAncestorOf(QApplication::focusWidget()));
    QTest::keyClick(&window(), Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget(), &songList());
    QTest::keyClick(&songList(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&songList(), Qt::Key_Delete);
    EXPECT_EQ(songList().model()->rowCount(), 0);
}

} // namespace xbr::host::tests
