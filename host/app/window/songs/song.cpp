#include "host/app/window/songs/song.h"

#include "host/app/publishing/history.h"
#include "host/app/publishing/verdict/words.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QStringList>

namespace xbr::host {

namespace {

constexpr int kHertz = 1000;

void takeTags(const MediaTags& tags, Song& song) {
    for (const auto& [name, text] : tags.texts) {
        for (const SongField& field : kSongFields) {
            if (name == field.attribute) {
                song.*field.text = QString::fromStdString(text).simplified();
            }
        }
    }
}

} // namespace

QString fileNameOf(const Song& song) {
    return QFile::decodeName(song.path.substr(song.path.rfind('/') + 1).c_str());
}

QString formatText(const AudioFormat& format) {
    QStringList parts(QString::fromStdString(format.name));
    if (format.bits > 0) {
        parts.append(QCoreApplication::translate("xbr::host::Song", "%1 bit").arg(format.bits));
    }
    if (format.bitRate > 0) {
        parts.append(QCoreApplication::translate("xbr::host::Song", "%1 kbit/s").arg(format.bitRate));
    }
    if (format.sampleRate > 0) {
        parts.append(QCoreApplication::translate("xbr::host::Song", "%1 kHz")
                         .arg(QLocale().toString(static_cast<double>(format.sampleRate) / kHertz, 'g', 4)));
    }
    return parts.join(QString::fromUtf8(" · "));
}

SongFile fileOf(const Song& song) {
    SongFile file = song.file;
    file.path = song.path;
    file.tags = {};
    for (const SongField& field : kSongFields) {
        const std::string text = (song.*field.text).toStdString();
        if (!text.empty()) {
            file.tags.texts.emplace_back(field.attribute, text);
        }
    }
    file.tags.trackIndex = song.number;
    return file;
}

Song readSong(const std::string& path) {
    Song song;
    song.path = path;
    song.isBeingRead = false;
    song.file = readSongFile(path);
    if (song.file.problem) {
        song.problem = QString::fromStdString(wordsOfFile(song.file.problem));
        song.title = fileNameOf(song);
        return song;
    }
    song.fingerprint = History::fingerprintOf(path);
    takeTags(song.file.tags, song);
    const NameTags names = namesOf(song.file);
    song.title = QString::fromStdString(names.title);
    song.number = names.number;
    return song;
}

} // namespace xbr::host
