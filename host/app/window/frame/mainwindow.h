#pragma once

#include "host/app/window/dialogs/dialogplace.h"
#include "host/app/window/frame/aboutdialog.h"
#include "host/app/window/frame/layoutsettings.h"
#include "host/app/window/frame/windowactions.h"
#include "host/app/window/look/appearance.h"
#include "host/app/window/panels/gadgetdock.h"
#include "host/app/window/songs/songlistmodel.h"
#include "host/app/window/songs/songreader.h"

#include <QMainWindow>

#include <memory>
#include <string>
#include <vector>

class QStackedWidget;

namespace xbr::host {

class EmptyState;
class Header;
class SongView;
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
    bool askWhetherToStop();
    bool askWhetherToLeaveOut(const Plan& plan);
    void handOver(Publishing& publishing, const PublishEntry& entry, const std::vector<Song>& songs);
    void commandPerformed(IParameter& command);

    DialogPlace* m_place;
    LayoutSettings m_layout;
    AppearanceSetting m_appearance;
    SongListModel m_songs;
    SongReader m_reader;
    SongView* m_view;
    EmptyState* m_empty;
    QStackedWidget* m_area;
    Header* m_header;
    StatusLine* m_status;
    std::unique_ptr<WindowActions> m_actions;
    std::vector<GadgetDock*> m_docks;
    std::vector<VersionLine> m_versions;
    bool m_isEnding = false;
};

} // namespace xbr::host
