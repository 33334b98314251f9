#pragma once

#include "host/app/window/songs/song.h"

#include <QAbstractTableModel>

#include <vector>

namespace xbr::host {

/// The songs of the window, in the user's order.
class SongListModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { kNumber, kTitle, kArtist, kAlbum, kAlbumArtist, kGenre, kLength, kFormat, kColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    /// Appends files whose songs are still to be read. Those that are in the list already are left out.
    /// Answers the ones that were appended.
    std::vector<std::string> addFiles(const std::vector<std::string>& paths);

    /// Fills in what was read of a file; does nothing when it is not in the list any more.
    void setSong(const Song& song);

    const Song& song(int row) const { return m_songs[static_cast<std::size_t>(row)]; }

    /// Together, as far as it is known.
    std::int64_t totalMilliseconds() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    bool removeRows(int row, int count, const QModelIndex& parent = {}) override;

    /// Moves one row by one place; false at the ends.
    bool moveSong(int row, int by);

private:
    QString textAt(const Song& song, int column) const;
    QVariant editedAt(const Song& song, int column) const;

    std::vector<Song> m_songs;
};

} // namespace xbr::host
