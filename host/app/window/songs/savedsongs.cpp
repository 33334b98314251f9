#include "host/app/window/songs/savedsongs.h"

#include "host/app/settings/keptlist.h"

#include <QJsonObject>
#include <QStandardPaths>

namespace xbr::host {

namespace {

constexpr qint64 kMostBytes = 20000000;

QString filePath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/xbrhost/songs.json";
}

/// Names of files are bytes, which text may not hold.
QString textOf(const std::string& path) {
    return QString::fromLatin1(QByteArray::fromStdString(path).toPercentEncoding("/ "));
}

QJsonObject objectOf(const Song& song) {
    QJsonObject object{{"file", textOf(song.path)}};
    if (!song.isBeingRead && !song.file.problem) {
        for (const SongField& field : kSongFields) {
            object[field.name] = song.*field.text;
        }
        object["number"] = song.number;
    }
    return object;
}

Song songOf(const QJsonObject& object) {
    Song song;
    song.path = QByteArray::fromPercentEncoding(object["file"].toString().toLatin1()).toStdString();
    song.isEdited = object.contains("number");
    for (const SongField& field : kSongFields) {
        song.*field.text = object[field.name].toString().simplified();
    }
    song.number = object["number"].toInt();
    if (!song.isEdited) {
        song.title = fileNameOf(song);
    }
    return song;
}

} // namespace

std::vector<Song> SavedSongs::load() const {
    std::vector<Song> songs;
    for (const auto& each : readKeptList(filePath(), kMostBytes).value_or(QJsonArray())) {
        Song song = songOf(each.toObject());
        if (!song.path.empty()) {
            songs.push_back(std::move(song));
        }
    }
    return songs;
}

void SavedSongs::save(const std::vector<Song>& songs) const {
    writeKeptList(filePath(), songs.size(), [&songs](std::size_t i) { return objectOf(songs[i]); });
}

} // namespace xbr::host
