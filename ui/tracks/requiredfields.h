#pragma once

#include "release/trackmetadata.h"
#include "ui/tracks/trackediting.h"

#include <algorithm>
#include <array>

namespace brindlex {

/// A value that a release must have: its parameter, the parameter of its mark, and both in the record.
struct RequiredField {
    TrackParameter valueTag;
    TrackParameter markTag;
    std::string TrackFields::*value;
    bool TrackFields::*missing;
};

/// The track number is not one of them.
inline constexpr std::array<RequiredField, 5> kRequiredFields{{
    {kAlbumTitle, kAlbumTitleMissing, &TrackFields::albumTitle, &TrackFields::albumTitleMissing},
    {kAlbumArtist, kAlbumArtistMissing, &TrackFields::albumArtist, &TrackFields::albumArtistMissing},
    {kPrimaryGenre, kPrimaryGenreMissing, &TrackFields::primaryGenre, &TrackFields::primaryGenreMissing},
    {kSongTitle, kSongTitleMissing, &TrackFields::songTitle, &TrackFields::songTitleMissing},
    {kSongArtist, kSongArtistMissing, &TrackFields::songArtist, &TrackFields::songArtistMissing},
}};

/// True when every required value is there.
inline bool isComplete(const TrackFields& record) {
    return std::none_of(kRequiredFields.begin(), kRequiredFields.end(),
                        [&](const RequiredField& field) { return (record.*field.value).empty(); });
}

} // namespace brindlex
