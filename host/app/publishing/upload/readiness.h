#pragma once

#include "host/app/publishing/upload/tracks.h"

#include <string>
#include <vector>

namespace xbr::host {

/// Why the panel's "upload" can do nothing.
struct Hindrance {
    enum class Kind : std::uint8_t { kNone, kUploading, kNoSongs, kNotSignedIn, kAllPublished, kIncomplete };
    Kind kind = Kind::kNone;
    std::string sentence;        ///< empty when nothing is in the way
    std::int32_t index = -1;     ///< of the song that lacks something
    std::vector<Detail> missing; ///< of that song
};

/// What is in the way; the first thing that the user has to do.
Hindrance hindranceOf(const std::vector<TrackReport>& tracks, bool isSignedIn, bool isUploading);

/// Tracks that "upload" would send although they lack something.
struct Incomplete {
    std::size_t count = 0;
    TrackReport first;           ///< when there are any
    std::vector<Detail> missing; ///< of the first
};
Incomplete incompleteOf(const std::vector<TrackReport>& tracks, bool isAlbum);

/// True when the track was sent, and the service did not take it.
bool isNotTaken(const TrackReport& track);

/// Performs the list's own command "Reset" on tracks, which have to be sent again then. The selection ends up
/// as it was.
void resetTracks(IListViewModel& tracks, const std::vector<std::int32_t>& rows);

} // namespace xbr::host
