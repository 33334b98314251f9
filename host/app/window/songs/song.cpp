#include "host/app/window/songs/song.h"

#include "host/app/audio/mediatags.h"
#include "host/app/modules/publishentry.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QStringList>

namespace xbr::host {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(xbr::host::Song)
};

constexpr int kHertz = 1000;
constexpr std::int64_t kMilliseconds = 1000;
constexpr std::int64_t kSecondsOfMinute = 60;

struct Field {
    const char* attribute;
    QString Song::*text;
};

constexpr Field kFields[] = {
    {"Media:Title", &Song::title}, {"Media:Artist", &Song::artist},
    {"Media:Album", &Song::album}, {"Media:AlbumArtist", &Song::albumArtist},
    {"Media:Genre", &Song::genre},
};

void takeTags(const MediaTags& tags, Song& song) {
    for (const auto& [name, text] : tags.texts) {
        for (const Field& field : kFields) {
            if (name == field.attribute) {
                song.*field.text = QString::fromStdString(text).simplified();
            }
        }
    }
    song.number = static_cast<int>(tags.trackIndex);
}

} // namespace

QString fileNameOf(const Song& song) {
    return QFile::decodeName(song.path.substr(song.path.rfind('/') + 1).c_str());
}

QString lengthText(std::int64_t milliseconds) {
    if (milliseconds <= 0) {
        return {};
    }
    const std::int64_t seconds = (milliseconds + kMilliseconds / 2) / kMilliseconds;
    const std::int64_t minutes = seconds / kSecondsOfMinute;
    const auto twoDigits = [](std::int64_t number) { return QString("%1").arg(number, 2, 10, QChar('0')); };
    const QString end = ":" + twoDigits(seconds % kSecondsOfMinute);
    return minutes < kSecondsOfMinute ? QString::number(minutes) + end
                                      : QString("%1:%2%3")
                                            .arg(minutes / kSecondsOfMinute)
                                            .arg(twoDigits(minutes % kSecondsOfMinute), end);
}

QString formatText(const AudioFormat& format) {
    QStringList parts(QString::fromStdString(format.name));
    if (format.bits > 0) {
        parts.append(Texts::tr("%1 bit").arg(format.bits));
    }
    if (format.bitRate > 0) {
        parts.append(Texts::tr("%1 kbit/s").arg(format.bitRate));
    }
    if (format.sampleRate > 0) {
        parts.append(Texts::tr("%1 kHz").arg(
            QLocale().toString(static_cast<double>(format.sampleRate) / kHertz, 'g', 4)));
    }
    return parts.join(QString::fromUtf8(" · "));
}

Ref<Attributes> mediaOf(const Song& song) {
    MediaTags tags;
    for (const Field& field : kFields) {
        const std::string text = (song.*field.text).toStdString();
        if (!text.empty()) {
            tags.texts.emplace_back(field.attribute, text);
        }
    }
    tags.trackIndex = song.number;
    return attributesOf(tags);
}

Song readSong(const std::string& path) {
    Song song;
    song.path = path;
    song.isBeingRead = false;
    const std::string problem = problemOfFile(path);
    const auto format = problem.empty() ? readAudioFormat(path)
                                        : Outcome<AudioFormat>(fileProblem(path, 0, Fault::kUnreadable));
    if (!format) {
        song.problem = problem.empty() ? Texts::tr("This is no audio that can be read.")
                                       : Texts::tr("The file cannot be read.");
        song.title = fileNameOf(song);
        return song;
    }
    song.format = *format;
    const auto tags = readTags(path);
    takeTags(tags ? *tags : readForeignTags(path), song);
    if (song.title.isEmpty()) {
        const QString name = fileNameOf(song);
        song.title = name.left(name.lastIndexOf('.'));
    }
    return song;
}

} // namespace xbr::host
