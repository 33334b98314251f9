#pragma once

#include "host/app/window/dialogs/dialogplace.h"
#include "host/app/window/frame/aboutdialog.h"
#include "host/app/window/frame/changes.h"
#include "host/app/window/frame/layoutsettings.h"
#include "host/app/window/frame/windowactions.h"
#include "host/app/window/look/appearance.h"
#include "host/app/window/look/desktopnotification.h"
#include "host/app/window/panels/gadgetdock.h"
#include "host/app/window/songs/songcommands.h"

#include <QMainWindow>

#include <memory>
#include <string>
#include <vector>

class QStackedWidget;

namespace xbr::host {

class EmptyState;
class Header;
class StatusLine;

/// The window that plays the workstation: songs, the publish menu, docked panels of modules.
class MainWindow final : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(DialogPlace& place);
    ~MainWindow() override;

    /// Appends songs; their tags follow as they are read. Paths are bytes.
    void addSongs(const std::vector<std::string>& paths);

    /// Shows what the modules offer: publish entries and panels. `versions` is for the about box.
    void showModules(std::vector<VersionLine> versions);

    /// Takes the panels down. Before the modules go.
    void closePanels();

    /// The songs that the list held when the program ended last.
    void restoreSongs() { m_commands.restore(); }

    void showNotice(const Notice& notice);
    const std::vector<GadgetDock*>& docks() const { return m_docks; }

    /// Hands the chosen songs to a publish entry.
    void publish(const PublishEntry& entry);

    /// Closes without a question.
    void end();

    QMenu* createPopupMenu() override { return nullptr; }

signals:
    /// The user closed the window; nothing runs in it any more once the caller's call has returned.
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void build();
    void connectActions();
    void connectDock(GadgetDock& dock, int number);
    void applyAppearance();
    void askForSongs();
    void updateActions();
    void focusNextArea();
    void resetLayout();
    bool isUploading() const;
    bool mayQuit();
    void stop();
    void noteChange(const Change& change);
    void tellDesktop(const Notice& notice, qint64 seconds);
    void refuseEntry(IParameter& parameter, const QString& text);
    PanelNotices* ownerOf(const IParameter& command, const char* name) const;
    PanelNotices* panelToTryAgain() const;

    DialogPlace* m_place;
    LayoutSettings m_layout;
    Changes m_changes;
    DesktopNotification m_notification;
    AppearanceSetting m_appearance;
    SongListModel m_songs;
    SongView* m_view;
    SongCommands m_commands;
    EmptyState* m_empty;
    QStackedWidget* m_area;
    Header* m_header;
    StatusLine* m_status;
    std::unique_ptr<WindowActions> m_actions;
    QList<QAction*> m_publishEntries;
    std::vector<GadgetDock*> m_docks;
    std::vector<VersionLine> m_versions;
    bool m_isEnding = false;
};

} // namespace xbr::host
