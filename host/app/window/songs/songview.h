#pragma once

#include "host/app/window/songs/songlistmodel.h"

#include <QFrame>
#include <QStringList>
#include <QTreeView>

#include <vector>

class QPushButton;

namespace xbr::host {

/// The list of songs.
class SongView final : public QTreeView {
    Q_OBJECT

public:
    SongView(SongListModel& model, QWidget* parent);

    /// The rows that a command works on, in the order of the list: the selected ones, or all.
    std::vector<int> chosenRows() const;
    bool hasSelection() const;

    std::vector<int> selectedRows() const;
    void selectRows(const std::vector<int>& rows);

    void removeSelected();
    void editCurrent();

    /// To a cell, for editing it.
    void editCell(int row, int column);

    /// Names of genres that are offered while one is typed.
    void setGenres(const QStringList& genres);

signals:
    /// The user wants rows to be before another one.
    void moveAsked(const std::vector<int>& rows, int before);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int rowBefore(const QPoint& place) const;
    void setDropRow(int row);
    int neededWidth(int column) const;
    void fitColumns();

    class Delegate;

    SongListModel* m_songs;
    Delegate* m_delegate;
    int m_dropRow = -1; ///< before which dragged rows would come
};

/// What stands in the place of an empty list: what it is for, and how to fill it.
class EmptyState final : public QFrame {
    Q_OBJECT

public:
    explicit EmptyState(QWidget* parent);

    QPushButton& button() { return *m_button; }

private:
    QPushButton* m_button;
};

} // namespace xbr::host
