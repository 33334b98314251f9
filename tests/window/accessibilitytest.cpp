// Whoever cannot use a mouse, or cannot see the window.

#include "tests/window/fixture.h"

#include <QAccessible>
#include <QMenu>
#include <QMenuBar>

#include <set>

namespace xbr::host::tests {

namespace {

/// Goes through everything that a screen reader reaches, and tells what cannot be told; the number of
/// controls grows.
std::string faultsOf(QAccessibleInterface& item, int& controls, const std::string& way = "") {
    static const std::set<QAccessible::Role> kControls{
        QAccessible::Button,       QAccessible::ButtonMenu,  QAccessible::ButtonDropDown,
        QAccessible::CheckBox,     QAccessible::ComboBox,    QAccessible::EditableText,
        QAccessible::Link,         QAccessible::List,        QAccessible::MenuItem,
        QAccessible::PageTab,      QAccessible::ProgressBar, QAccessible::RadioButton,
        QAccessible::ColumnHeader, QAccessible::SpinBox,     QAccessible::Table,
        QAccessible::Tree};
    const QAccessible::Role role = item.role();
    const std::string name = item.text(QAccessible::Name).toStdString();
    const std::string here = way + "/" + (item.object() ? item.object()->objectName().toStdString() : name);
    std::string faults;
    if (item.state().invisible) {
        return faults;
    }
    if (item.state().focusable || kControls.contains(role)) {
        ++controls;
        const bool mayBeEmpty = role == QAccessible::Cell || role == QAccessible::TreeItem;
        const bool hasRole = role != QAccessible::NoRole && role != QAccessible::Client;
        faults += name.empty() && !mayBeEmpty ? here + " has no name\n" : "";
        faults += item.state().focusable && !hasRole ? here + " has no role\n" : "";
    }
    for (int i = 0; i < item.childCount(); ++i) {
        if (QAccessibleInterface* child = item.child(i)) {
            faults += faultsOf(*child, controls, here);
        }
    }
    return faults;
}

std::string faultsOf(QWidget& window, int leastControls) {
    int controls = 0;
    const std::string faults = faultsOf(*QAccessible::queryAccessibleInterface(&window), controls);
    return controls < leastControls ? "few controls were reached\n" + faults : faults;
}

} // namespace

TEST_F(WindowTest, everyControlHasANameAndARole) {
    open({});
    EXPECT_EQ(faultsOf(window(), 10), "") << "before the sign-in";
    window().addSongs(stage.songs());
    ASSERT_TRUE(waitFor([&] { return !song(2, SongListModel::kLength).empty(); }));
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
    std::set<QWidget*> reached; // until it comes back
    songList().setFocus();
    while (QApplication::focusWidget() && reached.insert(QApplication::focusWidget()).second) {
        QTest::keyClick(&window(), Qt::Key_Tab);
    }
    for (const char* name :
         {"songs", "publish", "dismiss", "user", "disconnect", "singles", "tracks", "addTracks", "removeAll",
          "songTitle", "songArtist", "trackNumber", "albumTitle", "albumArtist", "primaryGenre", "upload"}) {
        EXPECT_TRUE(std::any_of(reached.begin(), reached.end(), [name](const QWidget* widget) {
            return widget->objectName() == name || widget->parentWidget()->objectName() == name;
        })) << name;
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
