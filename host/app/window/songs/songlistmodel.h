#pragma once

#include "host/app/publishing/genres.h"
#include "host/app/window/songs/song.h"

#include <QAbstractTableModel>

#include <functional>
#include <optional>
#include <vector>

class QMimeData;

namespace xbr::host {

/// The songs of the window, in the user's order.
class SongListModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column {
        kMark,
        kNumber,
        kTitle,
        kArtist,
        kAlbum,
        kAlbumArtist,
        kGenre,
        kLength,
        kFormat,
        kColumnCount
    };

    /// Roles beside Qt's: why a cell needs a look.
    enum Role { kProblemRole = Qt::UserRole };

    using QAbstractTableModel::QAbstractTableModel;

    /// Names the genres that are known; others are marked.
    void setGenres(const QStringList& genres);

    /// Tells when a song was published; empty for one that was not.
    using Published = std::function<QString(const Song& song)>;
    void setPublished(Published published);

    const std::vector<Song>& songs() const { return m_songs; }

    /// Puts other songs in the place of all.
    void setSongs(std::vector<Song> songs);

    /// Takes files out of the list.
    void removeFiles(const std::vector<std::string>& paths);

    /// Songs that came together are put in the order of their numbers, album by album.
    void orderByNumbers(const std::vector<std::string>& paths);

    /// Moves rows to before another one (the count of rows: to the end). Numbers follow the order where they
    /// counted it before. The first of the rows' new place.
    int moveSongs(const std::vector<int>& rows, int before);

    /// Why a song needs a look before it can be published, and in which column.
    struct Trouble {
        Column column;
        QString text;
        std::vector<std::string> near; ///< genres that may be meant
    };
    std::optional<Trouble> troubleOf(int row) const;

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

    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    QStringList mimeTypes() const override { return {kRowsType}; }

    /// The type of what is dragged: numbers of rows.
    static constexpr char kRowsType[] = "application/x-xbrhost-rows";
    static std::vector<int> rowsOf(const QMimeData& data);

private:
    std::optional<Trouble> genreTroubleOf(const Song& song) const;
    QVariant markAt(int row, int role) const;

    QString textAt(const Song& song, int column) const;
    QVariant editedAt(const Song& song, int column) const;

    std::vector<Song> m_songs;
    Genres m_genres{{}};
    Published m_published;
};

} // namespace xbr::host
