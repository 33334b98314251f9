#pragma once

#include <QWidget>

class QAction;
class QLabel;
class QMenu;
class QToolButton;

namespace xbr::host {

class SongListModel;

/// The top of the window: what the list holds, and what is done with it most.
class Header final : public QWidget {
    Q_OBJECT

public:
    Header(const SongListModel& songs, QWidget* parent);

    /// Buttons for actions of the window, in the order of the calls.
    void addButton(QAction& action);

    /// The button that stands out. With several entries it has a menu of them.
    void setPublishEntries(const QList<QAction*>& entries);

private:
    void showSummary();

    const SongListModel* m_songs;
    QLabel* m_summary;
    QToolButton* m_publish;
    QMenu* m_entries;
};

} // namespace xbr::host
