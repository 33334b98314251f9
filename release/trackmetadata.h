#pragma once

#include "framework/support/objects/object.h"

#include <cstdint>
#include <string>

namespace brindlex {

/// What is known about one track and the release it belongs to.
struct TrackFields {
    // Release
    std::string albumTitle;
    std::string albumArtist;
    std::string primaryGenre; ///< a name of the genre catalogue

    // Track
    std::int32_t trackNumber = 1;      ///< the number in effect
    std::int32_t albumTrackNumber = 1; ///< the number last entered in album mode
    std::string songTitle;
    std::string songArtist;

    // What each upload mode remembers while the other one is on
    std::string singlesGenre;
    std::string albumGenre;
    std::string albumModeTitle;

    // Required values that were found empty
    bool albumTitleMissing = false;
    bool albumArtistMissing = false;
    bool primaryGenreMissing = false;
    bool songTitleMissing = false;
    bool songArtistMissing = false;
};

/// The fields of a track in the list, as its editor and its upload share them.
struct TrackMetadata final : public xbr::RefCounted, public TrackFields {
    TrackMetadata() = default;
    explicit TrackMetadata(const TrackFields& fields) : TrackFields(fields) {}
    const TrackFields& fields() const { return *this; }
};

} // namespace brindlex
