#include "host/app/window/songs/songlistmodel.h"

#include "host/app/publishing/verdict/words.h"

#include <QMimeData>

#include <algorithm>
#include <set>
#include <utility>

namespace xbr::host {

namespace {

constexpr int kGreatestNumber = 9999;

/// The text that a column edits; null for the others.
QString Song::*textOfColumn(int column) {
    switch (column) {
    case SongListModel::kTitle:
        return &Song::title;
    case SongListModel::kArtist:
        return &Song::artist;
    case SongListModel::kAlbum:
        return &Song::album;
    case SongListModel::kAlbumArtist:
        return &Song::albumArtist;
    case SongListModel::kGenre:
        return &Song::genre;
    default:
        return nullptr;
    }
}

bool isRightAligned(int column) {
    return column == SongListModel::kNumber || column == SongListModel::kLength;
}

int alignmentOf(int column) {
    return static_cast<int>((isRightAligned(column) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

} // namespace

std::vector<std::string> SongListModel::addFiles(const std::vector<std::string>& paths) {
    std::set<std::string> known;
    for (const Song& song : m_songs) {
        known.insert(song.path);
    }
    std::vector<std::string> added;
    for (const std::string& path : paths) {
        if (known.insert(path).second) {
            added.push_back(path);
        }
    }
    if (added.empty()) {
        return added;
    }
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(added.size()) - 1);
    m_songs.reserve(m_songs.size() + added.size());
    for (const std::string& path : added) {
        Song song;
        song.path = path;
        song.title = fileNameOf(song);
        m_songs.push_back(std::move(song));
    }
    endInsertRows();
    return added;
}

void SongListModel::setSong(const Song& song) {
    // Songs are read in the order of the list: the one that is meant is the first that waits, as a rule.
    const auto found = std::find_if(m_songs.begin(), m_songs.end(), [&song](const Song& each) {
        return each.isBeingRead && each.path == song.path;
    });
    if (found == m_songs.end()) {
        return;
    }
    const Song before = std::exchange(*found, song);
    if (before.isEdited) {
        found->title = before.title;
        found->artist = before.artist;
        found->album = before.album;
        found->albumArtist = before.albumArtist;
        found->genre = before.genre;
        found->number = before.number;
        found->isEdited = true;
    }
    const int row = static_cast<int>(found - m_songs.begin());
    emit dataChanged(index(row, 0), index(row, kColumnCount - 1));
}

std::int64_t SongListModel::totalMilliseconds() const {
    std::int64_t total = 0;
    for (const Song& song : m_songs) {
        total += song.file.format.milliseconds;
    }
    return total;
}

int SongListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_songs.size());
}

int SongListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumnCount;
}

QString SongListModel::textAt(const Song& song, int column) const {
    if (const auto text = textOfColumn(column)) {
        return song.*text;
    }
    switch (column) {
    case kNumber:
        return song.number > 0 ? QString::number(song.number) : QString();
    case kLength:
        return QString::fromStdString(wordsOfLength(song.file.format.milliseconds));
    default:
        return song.isBeingRead ? tr("Reading…") : formatText(song.file.format);
    }
}

QVariant SongListModel::editedAt(const Song& song, int column) const {
    return column == kNumber ? QVariant(song.number) : QVariant(textAt(song, column));
}

QVariant SongListModel::markAt(int row, int role) const {
    const auto trouble = troubleOf(row);
    const QString published = m_published ? m_published(song(row)) : QString();
    const QString text = trouble ? trouble->text : published;
    switch (role) {
    case Qt::DisplayRole:
        return trouble ? QString("!") : (published.isEmpty() ? QString() : QString::fromUtf8("✓"));
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
    case Qt::AccessibleDescriptionRole:
        return text;
    case Qt::TextAlignmentRole:
        return static_cast<int>(Qt::AlignCenter);
    default:
        return {};
    }
}

QVariant SongListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    if (index.column() == kMark) {
        return markAt(index.row(), role);
    }
    const Song& shown = song(index.row());
    if (role == kProblemRole || role == Qt::AccessibleDescriptionRole) {
        const auto trouble = troubleOf(index.row());
        return trouble && trouble->column == index.column() ? trouble->text : QString();
    }
    switch (role) {
    case Qt::DisplayRole:
        return shown.problem.isEmpty() || index.column() != kFormat ? textAt(shown, index.column())
                                                                    : shown.problem;
    case Qt::EditRole:
        return editedAt(shown, index.column());
    case Qt::ToolTipRole:
        return index.column() == kTitle || index.column() == kFormat ? QString::fromStdString(shown.path)
                                                                     : textAt(shown, index.column());
    case Qt::TextAlignmentRole:
        return alignmentOf(index.column());
    case Qt::AccessibleTextRole:
        return headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString() + ": " +
               textAt(shown, index.column());
    default:
        return {};
    }
}

QVariant SongListModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= kColumnCount) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return alignmentOf(section);
    }
    const QString names[] = {QString(),          tr("No."),   tr("Title"),  tr("Artist"), tr("Album"),
                             tr("Album artist"), tr("Genre"), tr("Length"), tr("Format")};
    if (role == Qt::AccessibleTextRole && section == kMark) {
        return tr("Mark");
    }
    if (role == Qt::AccessibleTextRole && section == kNumber) {
        return tr("Track number");
    }
    return role == Qt::DisplayRole || role == Qt::AccessibleTextRole ? QVariant(names[section]) : QVariant();
}

Qt::ItemFlags SongListModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool isEditable = index.column() == kNumber || textOfColumn(index.column());
    if (index.isValid() && isEditable && !song(index.row()).isBeingRead) {
        flags |= Qt::ItemIsEditable;
    }
    flags |= index.isValid() ? Qt::ItemIsDragEnabled : Qt::ItemIsDropEnabled;
    return flags;
}

bool SongListModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable)) {
        return false;
    }
    Song& edited = m_songs[static_cast<std::size_t>(index.row())];
    if (const auto text = textOfColumn(index.column())) {
        edited.*text = value.toString().simplified();
    } else {
        edited.number = std::clamp(value.toInt(), 0, kGreatestNumber);
    }
    edited.isEdited = true;
    emit dataChanged(this->index(index.row(), kMark), index);
    return true;
}

bool SongListModel::removeRows(int row, int count, const QModelIndex& parent) {
    if (parent.isValid() || row < 0 || count <= 0 || row + count > rowCount()) {
        return false;
    }
    beginRemoveRows({}, row, row + count - 1);
    m_songs.erase(m_songs.begin() + row, m_songs.begin() + row + count);
    endRemoveRows();
    return true;
}

void SongListModel::setGenres(const QStringList& genres) {
    std::vector<std::string> names;
    for (const QString& genre : genres) {
        names.push_back(genre.toStdString());
    }
    m_genres = Genres(std::move(names));
    if (rowCount() > 0) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, kColumnCount - 1));
    }
}

void SongListModel::setPublished(Published published) {
    m_published = std::move(published);
    if (rowCount() > 0) {
        emit dataChanged(index(0, kMark), index(rowCount() - 1, kMark));
    }
}

std::optional<SongListModel::Trouble> SongListModel::genreTroubleOf(const Song& song) const {
    const std::string genre = song.genre.toStdString();
    if (genre.empty() || m_genres.isEmpty() || m_genres.match(genre)) {
        return std::nullopt;
    }
    Finding finding;
    finding.kind = Finding::Kind::kUnknownGenre;
    finding.song = song.title.toStdString();
    finding.text = genre;
    finding.near = m_genres.near(genre);
    return Trouble{kGenre, QString::fromStdString(wordsOf(finding)), finding.near};
}

std::optional<SongListModel::Trouble> SongListModel::troubleOf(int row) const {
    const Song& looked = song(row);
    if (looked.isBeingRead) {
        return std::nullopt;
    }
    return looked.problem.isEmpty() ? genreTroubleOf(looked)
                                    : std::optional(Trouble{kFormat, looked.problem, {}});
}

void SongListModel::setSongs(std::vector<Song> songs) {
    removeRows(0, rowCount());
    if (!songs.empty()) {
        beginInsertRows({}, 0, static_cast<int>(songs.size()) - 1);
        m_songs = std::move(songs);
        endInsertRows();
    }
}

void SongListModel::removeFiles(const std::vector<std::string>& paths) {
    const std::set<std::string> gone(paths.begin(), paths.end());
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (gone.contains(song(row).path)) {
            removeRows(row, 1);
        }
    }
}

void SongListModel::orderByNumbers(const std::vector<std::string>& paths) {
    const std::set<std::string> together(paths.begin(), paths.end());
    const auto isOf = [&](const Song& song) { return together.contains(song.path); };
    const auto first = std::find_if(m_songs.begin(), m_songs.end(), isOf);
    const auto last = std::find_if_not(first, m_songs.end(), isOf);
    if (std::any_of(last, m_songs.end(), isOf)) {
        return; // the user has moved some of them meanwhile
    }
    std::vector<QString> albums;
    for (auto song = first; song != last; ++song) {
        if (std::find(albums.begin(), albums.end(), song->album) == albums.end()) {
            albums.push_back(song->album);
        }
    }
    const auto placeOf = [&albums](const Song& song) {
        const auto album = std::find(albums.begin(), albums.end(), song.album) - albums.begin();
        return std::pair(album, song.number > 0 ? song.number : kGreatestNumber + 1);
    };
    const auto isBefore = [&](const Song& left, const Song& right) { return placeOf(left) < placeOf(right); };
    if (std::is_sorted(first, last, isBefore)) {
        return;
    }
    emit layoutAboutToBeChanged();
    std::stable_sort(first, last, isBefore);
    emit layoutChanged();
    emit dataChanged(index(0, 0), index(rowCount() - 1, kColumnCount - 1));
}

int SongListModel::moveSongs(const std::vector<int>& rows, int before) {
    const std::set<int> moved(rows.begin(), rows.end());
    std::vector<Song> order;
    std::vector<Song> taken;
    int place = 0;
    for (int row = 0; row < rowCount(); ++row) {
        (moved.contains(row) ? taken : order).push_back(song(row));
        place += row < before && !moved.contains(row) ? 1 : 0;
    }
    order.insert(order.begin() + place, taken.begin(), taken.end());
    const int low = std::min(place, *moved.begin());
    const int high = std::max(place + static_cast<int>(taken.size()), *moved.rbegin() + 1);
    const int start = song(low).number;
    bool isCounting = start > 0;
    for (int row = low; row < high; ++row) {
        isCounting = isCounting && song(row).number == start + row - low;
    }
    for (int row = low; isCounting && row < high; ++row) {
        Song& numbered = order[static_cast<std::size_t>(row)];
        numbered.isEdited = numbered.isEdited || numbered.number != start + row - low;
        numbered.number = start + row - low;
    }
    emit layoutAboutToBeChanged();
    m_songs = std::move(order);
    emit layoutChanged();
    emit dataChanged(index(low, 0), index(high - 1, kColumnCount - 1));
    return place;
}

QMimeData* SongListModel::mimeData(const QModelIndexList& indexes) const {
    std::set<int> rows;
    for (const QModelIndex& each : indexes) {
        rows.insert(each.row());
    }
    QStringList numbers;
    for (const int row : rows) {
        numbers.append(QString::number(row));
    }
    auto* data = new QMimeData;
    data->setData(kRowsType, numbers.join(' ').toLatin1());
    return data;
}

std::vector<int> SongListModel::rowsOf(const QMimeData& data) {
    std::vector<int> rows;
    for (const QString& number : QString::fromLatin1(data.data(kRowsType)).split(' ', Qt::SkipEmptyParts)) {
        rows.push_back(number.toInt());
    }
    return rows;
}

} // namespace xbr::host
