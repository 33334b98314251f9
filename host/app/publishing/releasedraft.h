#pragma once

#include "host/app/publishing/releaseintake.h"

#include <cstdint>
#include <string>
#include <vector>

namespace xbr::host {

/// A song of a release that would be sent.
struct SongDraft {
    std::string title;
    std::string artist;
    std::int64_t trackNumber = 0;
    std::string source;   ///< path of the file that the user chose
    std::string fileName; ///< under which the audio would go out
    bool isRendered = false;
    std::vector<std::string> missing; ///< "songTitle", "songArtist"
};

/// A release that would be sent, with the values that the module's track editor shows.
struct ReleaseDraft {
    std::string title;
    std::string artist;
    std::string genre;
    std::string genreProblem;         ///< when the genre is none that the module offers
    std::vector<std::string> missing; ///< "albumTitle", "albumArtist", "primaryGenre"
    std::vector<SongDraft> songs;

    bool isComplete() const;
};

/// Reads what the module would send of the songs that it took: one release for an album, otherwise one for
/// each song. Moves the focus of the list; it ends up where it was.
std::vector<ReleaseDraft> readDrafts(GadgetPanel& panel, const ReleaseIntake& intake, ReleaseMode mode);

} // namespace xbr::host
