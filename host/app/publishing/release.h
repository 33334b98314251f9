#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace xbr::host {

enum class ReleaseMode : std::uint8_t {
    kSingles, ///< each song is a release of its own
    kAlbum,   ///< all songs are one release
    kPanel,   ///< as the module's panel does by itself: several songs are an album, and may be edited there
};

/// A song to publish, with what the user says about it. Empty texts and a number of 0 leave it to the file's
/// tags.
struct SongWish {
    std::string path; ///< as bytes, relative to the working folder
    std::string title;
    std::string artist;
    std::string genre;       ///< of a single; an album's is the release's
    std::int32_t number = 0; ///< from 1
};

/// What the user wants to publish. Texts are UTF-8; empty ones leave it to the files' tags.
struct ReleaseWish {
    ReleaseMode mode = ReleaseMode::kSingles;
    std::string albumTitle;  ///< of an album; a single bears the title of its song
    std::string albumArtist; ///< of an album; a single is by the artist of its song
    std::string genre;       ///< of every release that has none of its own
    std::vector<SongWish> songs;
    bool skipsUnreadable = false; ///< leave out files that cannot be published
    bool skipsIncomplete = false; ///< leave out singles that lack details
    bool sendsAgain = false;      ///< send what was published before, too
};

/// Where a track of a panel stands.
enum class TrackState : std::uint8_t {
    kNone = 0, ///< not sent
    kDone = 1,
    kFailed = 2,
    kMissingInformation = 3, ///< sent, and refused for it
};

/// The greatest number of a track that can be said.
constexpr std::int32_t kMaximumTrackNumber = 9999;

} // namespace xbr::host
