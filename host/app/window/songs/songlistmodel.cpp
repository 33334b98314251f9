#include "host/app/window/songs/songlistmodel.h"

#include "host/app/publishing/words.h"

#include <QFont>
#include <QPalette>

#include <algorithm>
#include <set>

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
    *found = song;
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

QVariant SongListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const Song& shown = song(index.row());
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
    const QString names[] = {tr("No."),          tr("Title"), tr("Artist"), tr("Album"),
                             tr("Album artist"), tr("Genre"), tr("Length"), tr("Format")};
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
    emit dataChanged(index, index);
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

bool SongListModel::moveSong(int row, int by) {
    const int target = row + by;
    const bool isPossible = row >= 0 && row < rowCount() && target >= 0 && target < rowCount();
    if (!isPossible || !beginMoveRows({}, row, row, {}, by > 0 ? target + 1 : target)) {
        return false;
    }
    std::swap(m_songs[static_cast<std::size_t>(row)], m_songs[static_cast<std::size_t>(target)]);
    endMoveRows();
    return true;
}

} // namespace xbr::host
