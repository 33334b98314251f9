#include "host/app/window/frame/windowactions.h"

#include "host/app/window/look/icon.h"
#include "host/app/window/songs/songview.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace xbr::host {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(xbr::host::WindowActions)
};

QAction* makeAction(QObject& owner, const char* name, const QString& text, const QKeySequence& key) {
    auto* action = new QAction(text, &owner);
    action->setObjectName(name);
    action->setShortcut(key);
    return action;
}

/// The key belongs to the list; elsewhere it has another meaning.
void bindToList(QAction& action, SongView& songs) {
    action.setShortcutContext(Qt::WidgetShortcut);
    songs.addAction(&action);
}

} // namespace

WindowActions::WindowActions(QMainWindow& window, SongView& songs) {
    window.menuBar()->setObjectName("menuBar");
    window.menuBar()->setAccessibleName(Texts::tr("Menus"));
    makeFileMenu(window);
    makeSongMenu(window, songs);
    makePublishMenu(window);
    makeViewMenu(window);
    about = makeAction(window, "about", Texts::tr("&About xbrhost"), QKeySequence(Qt::CTRL | Qt::Key_F1));
    window.menuBar()->addMenu(Texts::tr("&Help"))->addAction(about);
}

void WindowActions::makeFileMenu(QMainWindow& window) {
    add = makeAction(window, "addSongs", Texts::tr("&Add Songs…"), QKeySequence::Open);
    add->setIconText(Texts::tr("Add"));
    add->setToolTip(Texts::tr("Add songs (%1)").arg(add->shortcut().toString(QKeySequence::NativeText)));
    add->setIcon(symbolIcon("add"));
    quit = makeAction(window, "quit", Texts::tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q));
    quit->setMenuRole(QAction::QuitRole);
    auto* menu = window.menuBar()->addMenu(Texts::tr("&File"));
    menu->addAction(add);
    menu->addSeparator();
    menu->addAction(quit);
}

void WindowActions::makeSongMenu(QMainWindow& window, SongView& songs) {
    edit = makeAction(window, "editSong", Texts::tr("&Edit Cell"), QKeySequence(Qt::Key_F2));
    edit->setIcon(symbolIcon("edit"));
    remove = makeAction(window, "removeSongs", Texts::tr("&Remove"), QKeySequence::Delete);
    remove->setIconText(Texts::tr("Remove"));
    remove->setToolTip(Texts::tr("Remove the selected songs from the list; the files stay"));
    remove->setIcon(symbolIcon("remove"));
    up = makeAction(window, "moveUp", Texts::tr("Move &Up"), QKeySequence(Qt::ALT | Qt::Key_Up));
    down = makeAction(window, "moveDown", Texts::tr("Move &Down"), QKeySequence(Qt::ALT | Qt::Key_Down));
    auto* all = makeAction(window, "selectAllSongs", Texts::tr("Select &All"), QKeySequence::SelectAll);
    QObject::connect(all, &QAction::triggered, &songs, &QTreeView::selectAll);
    undo = makeAction(window, "undo", Texts::tr("&Undo"), QKeySequence(Qt::CTRL | Qt::Key_Z));
    redo = makeAction(window, "redo", Texts::tr("Red&o"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    nextProblem = makeAction(window, "nextProblem", Texts::tr("&Next Problem"), QKeySequence(Qt::Key_F8));
    previousProblem = makeAction(window, "previousProblem", Texts::tr("&Previous Problem"),
                                 QKeySequence(Qt::SHIFT | Qt::Key_F8));
    undo->setEnabled(false);
    redo->setEnabled(false);
    auto* menu = window.menuBar()->addMenu(Texts::tr("&Edit"));
    menu->addActions({undo, redo});
    menu->addSeparator();
    for (QAction* action : {edit, remove, up, down, all}) {
        bindToList(*action, songs);
        menu->addAction(action);
    }
    menu->addSeparator();
    menu->addActions({nextProblem, previousProblem});
    songs.setContextMenuPolicy(Qt::ActionsContextMenu);
}

void WindowActions::makePublishMenu(QMainWindow& window) {
    stop = makeAction(window, "stopUpload", Texts::tr("&Stop"), QKeySequence(Qt::CTRL | Qt::Key_Period));
    tryAgain = makeAction(window, "uploadAgain", Texts::tr("&Try again"),
                          QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_U));
    publishMenu = window.menuBar()->addMenu(Texts::tr("&Publish"));
    publishMenu->addActions({publishMenu->addSeparator(), stop, tryAgain});
}

void WindowActions::makeViewMenu(QMainWindow& window) {
    panelMenu = window.menuBar()->addMenu(Texts::tr("&View"));
    panelMenu->addSeparator();
    nextArea = makeAction(window, "nextArea", Texts::tr("&Next Area"), QKeySequence(Qt::Key_F6));
    panelMenu->addAction(nextArea);
    m_appearanceMenu = panelMenu->addMenu(Texts::tr("&Appearance"));
    resetLayout = makeAction(window, "resetLayout", Texts::tr("&Reset Layout"),
                             QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R));
    panelMenu->addAction(resetLayout);
}

void WindowActions::setAppearance(AppearanceChoice choice,
                                  const std::function<void(AppearanceChoice)>& choose) {
    const struct {
        AppearanceChoice choice;
        const char* name;
        QString text;
        int key;
    } entries[] = {
        {AppearanceChoice::kDesktop, "appearanceDesktop", Texts::tr("As the &Desktop"), Qt::Key_F9},
        {AppearanceChoice::kLight, "appearanceLight", Texts::tr("&Light"), Qt::Key_F10},
        {AppearanceChoice::kDark, "appearanceDark", Texts::tr("Da&rk"), Qt::Key_F11}};
    auto* group = new QActionGroup(m_appearanceMenu);
    for (const auto& entry : entries) {
        QAction* action = m_appearanceMenu->addAction(entry.text);
        action->setObjectName(entry.name);
        action->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(entry.key)));
        action->setCheckable(true);
        action->setChecked(entry.choice == choice);
        group->addAction(action);
        QObject::connect(action, &QAction::triggered, group,
                         [choose, chosen = entry.choice] { choose(chosen); });
    }
}

} // namespace xbr::host
