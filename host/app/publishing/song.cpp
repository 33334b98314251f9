#include "host/app/publishing/song.h"

#include "host/app/audio/mediasignature.h"
#include "host/app/audio/soundfile.h"
#include "host/base/textscan.h"

#include <QString>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;

/// Notes who a file is; the problem when it is no regular file that can be read.
Problem identify(SongFile& song) {
    struct stat status {};
    if (stat(song.path.c_str(), &status) != 0) {
        return fileProblem(song.path, errno, Fault::kUnreadable);
    }
    song.identity = std::to_string(status.st_dev) + ":" + std::to_string(status.st_ino);
    song.size = static_cast<std::uint64_t>(status.st_size);
    if (!S_ISREG(status.st_mode)) {
        return {Fault::kNotFile, song.path, 0, {}, {}, {}};
    }
    return access(song.path.c_str(), R_OK) == 0 ? Problem{}
                                                : fileProblem(song.path, errno, Fault::kUnreadable);
}

const char* nameOf(MediaKind kind) {
    switch (kind) {
    case MediaKind::kWav:
        return "WAV";
    case MediaKind::kFlac:
        return "FLAC";
    case MediaKind::kMp3:
        return "MP3";
    default:
        return "";
    }
}

Problem readAudio(SongFile& song) {
    const auto format = readAudioFormat(song.path);
    song.kind = nameOf(recognise(song.path));
    if (!format) {
        return format.problem();
    }
    song.format = *format;
    if (song.kind.empty()) {
        song.kind = format->name;
    }
    return {};
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

} // namespace

std::string tagOf(const MediaTags& tags, const char* name) {
    const auto found =
        std::find_if(tags.texts.begin(), tags.texts.end(), [name](auto& text) { return text.first == name; });
    return found == tags.texts.end() ? std::string()
                                     : QString::fromStdString(found->second).simplified().toStdString();
}

NameTags readFileName(const std::string& path) {
    static constexpr std::size_t kMostDigits = 3;
    static constexpr std::string_view kSeparators = " ._-)";
    const std::string stem = fs::path(path).stem().string();
    const auto digits =
        static_cast<std::size_t>(std::find_if_not(stem.begin(), stem.end(), &isDigit) - stem.begin());
    const auto title = std::min(stem.find_first_not_of(kSeparators, digits), stem.size());
    // One digit and a blank is as likely a word of the title: "7 Seconds".
    const bool isNumbered = digits <= kMostDigits && title > digits && title < stem.size() &&
                            (digits > 1 || (digits == 1 && stem.substr(digits, title - digits) != " "));
    const int number = isNumbered ? std::stoi(stem.substr(0, digits)) : 0;
    return number > 0 ? NameTags{number, stem.substr(title)} : NameTags{0, stem};
}

NameTags namesOf(const SongFile& song) {
    const std::string title = tagOf(song.tags, "Media:Title");
    const int number = static_cast<int>(song.tags.trackIndex);
    if (title.empty() && number == 0) {
        return readFileName(song.path);
    }
    return {number, title.empty() ? fs::path(song.path).stem().string() : title};
}

std::string fileNameOf(const std::string& path) {
    return fs::path(path).filename().string();
}

std::string extensionOf(const std::string& path) {
    const std::string extension = fs::path(path).extension().string();
    return extension.size() > 1 ? QString::fromStdString(extension.substr(1)).toLower().toStdString() : "";
}

SongFile readSongFile(const std::string& path) {
    SongFile song;
    song.path = path;
    song.problem = identify(song);
    if (!song.problem) {
        song.problem = readAudio(song);
    }
    if (!song.problem) {
        const auto tags = readTags(path);
        song.tags = tags ? *tags : readForeignTags(path);
    }
    return song;
}

} // namespace xbr::host
