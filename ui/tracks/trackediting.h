#pragma once

#include <cstdint>

namespace brindlex {

/// How tracks become releases.
enum class UploadMode { kSingles, kAlbum };

/// Whether validation marks what is missing, or takes the marks away.
enum class Marks { kClear, kSet };

/// Tags of the property editor's parameters.
enum TrackParameter : std::int32_t {
    kAlbumTitle = 100,
    kAlbumArtist = 101,
    kPrimaryGenre = 102,
    kTrackNumber = 103,
    kSongTitle = 104,
    kSongArtist = 105,
    kAlbumTitleMissing = 106,
    kAlbumArtistMissing = 107,
    kPrimaryGenreMissing = 108,
    kSongTitleMissing = 109,
    kSongArtistMissing = 110,
};

} // namespace brindlex
