#pragma once

#include "host/app/publishing/song.h"

#include <QString>

#include <array>
#include <string>

namespace xbr::host {

/// What the list knows of a song. The texts are the user's to edit; the file stays as it is.
struct Song {
    std::string path; ///< bytes
    QString title;
    QString artist;
    QString album;
    QString albumArtist;
    QString genre;
    int number = 0;          ///< from 1; 0 for none
    SongFile file;           ///< as it was read
    QString problem;         ///< why it cannot be published; empty when it can
    std::string fingerprint; ///< by which the history knows it
    bool isEdited = false;   ///< the texts are the user's, whatever the tags say
    bool isBeingRead = true; ///< its tags are still to come
};

/// A text of a song.
struct SongField {
    const char* attribute; ///< its tag
    const char* name;      ///< in the saved list
    QString Song::*text;
};

inline constexpr std::array kSongFields = {
    SongField{"Media:Title", "title", &Song::title},
    SongField{"Media:Artist", "artist", &Song::artist},
    SongField{"Media:Album", "album", &Song::album},
    SongField{"Media:AlbumArtist", "albumArtist", &Song::albumArtist},
    SongField{"Media:Genre", "genre", &Song::genre},
};

/// The name of the song's file.
QString fileNameOf(const Song& song);

/// "WAV · 24 bit · 48 kHz"
QString formatText(const AudioFormat& format);

/// The song's file, with the texts as the user has edited them in the place of its tags.
SongFile fileOf(const Song& song);

/// Reads tags and format of a file that the user chose. Any thread.
Song readSong(const std::string& path);

} // namespace xbr::host
