#pragma once

#include "host/app/window/look/appearance.h"

#include <functional>

class QAction;
class QMainWindow;
class QMenu;

namespace xbr::host {

class SongView;

/// What the window can be told to do, with its menus and keys. Owned by the window.
class WindowActions {
public:
    /// Makes the actions and the menu bar. What works on the list is heard only while the list has the focus.
    WindowActions(QMainWindow& window, SongView& songs);

    QAction* add;
    QAction* edit;
    QAction* remove;
    QAction* up;
    QAction* down;
    QAction* undo;
    QAction* redo;
    QAction* stop;
    QAction* tryAgain;
    QAction* nextProblem;
    QAction* previousProblem;
    QAction* quit;
    QAction* nextArea;
    QAction* resetLayout;
    QAction* about;
    QMenu* publishMenu;
    QMenu* panelMenu; ///< the view menu: panels are listed at its top

    /// Puts the entries of the appearance menu in place; `choose` is called with the user's choice.
    void setAppearance(AppearanceChoice choice, const std::function<void(AppearanceChoice)>& choose);

private:
    void makeFileMenu(QMainWindow& window);
    void makeSongMenu(QMainWindow& window, SongView& songs);
    void makePublishMenu(QMainWindow& window);
    void makeViewMenu(QMainWindow& window);

    QMenu* m_appearanceMenu;
};

} // namespace xbr::host
