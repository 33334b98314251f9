#pragma once

#include "host/app/audio/audioformat.h"
#include "host/app/audio/mediatags.h"
#include "host/base/problem.h"

#include <cstdint>
#include <string>

namespace xbr::host {

/// A song as its file tells of it.
struct SongFile {
    std::string path;     ///< bytes, as it was asked for
    std::string identity; ///< the same for two names of one file: device and inode
    std::uint64_t size = 0;
    MediaTags tags;
    AudioFormat format;
    std::string
        kind; ///< what the bytes are, whatever the name says: "WAV", "FLAC", "MP3", "AIFF"; may be empty
    Problem problem; ///< why it cannot be published
    std::int64_t published =
        0; ///< when it was published from this computer, in seconds since 1970; 0 for never
};

/// Reads what there is to know of a song before it is handed over; nothing else looks at its file until then.
/// Any thread.
SongFile readSongFile(const std::string& path);

/// A tag by its attribute name ("Media:Title"); empty when there is none.
std::string tagOf(const MediaTags& tags, const char* name);

/// What the name of a file says about a song: "/m/01 Night Drive.wav" is number 1, "Night Drive". Without a
/// number in front of it the title is the name without its extension.
struct NameTags {
    int number = 0; ///< 0 for none
    std::string title;
};
NameTags readFileName(const std::string& path);

/// What a song is called: by its tags, or by its file's name when they say nothing.
NameTags namesOf(const SongFile& song);

/// The last part of a path.
std::string fileNameOf(const std::string& path);

/// The extension in lower case, without its dot.
std::string extensionOf(const std::string& path);

} // namespace xbr::host
