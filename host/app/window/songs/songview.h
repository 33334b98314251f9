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

    void removeSelected();
    void moveCurrent(int by);
    void editCurrent();

    /// Names of genres that are offered while one is typed.
    void setGenres(const QStringList& genres);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    std::vector<int> selectedRows() const;
    int neededWidth(int column) const;
    void fitColumns();

    class Delegate;

    SongListModel* m_songs;
    Delegate* m_delegate;
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
