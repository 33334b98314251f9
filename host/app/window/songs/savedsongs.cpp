#include "host/app/window/songs/savedsongs.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>
#include <QStandardPaths>

namespace xbr::host {

namespace {

constexpr qint64 kMostBytes = 20000000;

struct SavedField {
    const char* name;
    QString Song::*text;
};

constexpr SavedField kSavedFields[] = {{"title", &Song::title},
                                       {"artist", &Song::artist},
                                       {"album", &Song::album},
                                       {"albumArtist", &Song::albumArtist},
                                       {"genre", &Song::genre}};

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
        for (const SavedField& field : kSavedFields) {
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
    for (const SavedField& field : kSavedFields) {
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
    QFile file(filePath());
    std::vector<Song> songs;
    if (!file.open(QIODevice::ReadOnly) || file.size() > kMostBytes) {
        return songs;
    }
    for (const auto& each : QJsonDocument::fromJson(file.readAll()).array()) {
        Song song = songOf(each.toObject());
        if (!song.path.empty()) {
            songs.push_back(std::move(song));
        }
    }
    return songs;
}

void SavedSongs::save(const std::vector<Song>& songs) const {
    QJsonArray all;
    for (const Song& song : songs) {
        all.append(objectOf(song));
    }
    QDir().mkpath(QFileInfo(filePath()).path());
    QSaveFile file(filePath());
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QJsonDocument(all).toJson());
        file.commit();
    }
}

} // namespace xbr::host
