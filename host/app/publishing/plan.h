#pragma once

#include "host/app/publishing/genres.h"
#include "host/app/publishing/release.h"
#include "host/app/publishing/song.h"

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace xbr::host {

/// What a release and its songs need.
enum class Detail : std::uint8_t { kAlbumTitle, kAlbumArtist, kGenre, kSongTitle, kSongArtist };

inline constexpr std::array kDetails{Detail::kAlbumTitle, Detail::kAlbumArtist, Detail::kGenre,
                                     Detail::kSongTitle, Detail::kSongArtist};

/// The name of the parameter of the panel's editor ("primaryGenre").
const char* parameterOf(Detail detail);

/// What a module offers and asks for.
struct Offer {
    Genres genres;
    /// The extension of the files that it wants instead of those with this extension; empty when it takes
    /// them.
    std::function<std::string(const std::string& extension)> wantedInstead;
    bool isAlbumOn = false; ///< the panel's own mode, which one song leaves alone
};

struct PlannedSong {
    std::size_t wish = 0; ///< place in the wish
    std::string source;   ///< path of the file that the user chose
    std::string fileName; ///< under which the audio goes out
    std::uint64_t size = 0;
    std::string title;
    std::string artist;
    std::string genre; ///< of its file, as the list spells it; an album's is the release's
    std::string album; ///< what the file says of its album, for a panel in which the mode may change
    std::string albumArtist;
    int number = 1;     ///< with which it goes: that of a single is 1
    int saidNumber = 0; ///< by the user, the tags or the file's name; 0 for none
    bool isRendered = false;
    std::vector<Detail> missing;
};

struct PlannedRelease {
    std::string title;
    std::string artist;
    std::string genre; ///< as the list spells it; empty when it is unknown
    std::vector<Detail> missing;
    std::vector<PlannedSong> songs;
};

/// Something that the user should know before the songs go.
struct Finding {
    enum class Kind : std::uint8_t {
        kUnknownGenre,   ///< `text` is the genre, `near` what may be meant
        kSameFile,       ///< one file twice
        kUnreadable,     ///< `problem`
        kSameName,       ///< `text` is the path of the other song
        kMissingDetails, ///< `missing`
        kTwoNumbers,     ///< `text` is the title of the other song, `number`
        kPublished,      ///< before, from this computer; `time`
    };
    enum class Weight : std::uint8_t {
        kFatal,     ///< nothing can be handed over
        kOpen,      ///< nothing is sent until it is settled; in a panel the user can
        kToBeKnown, ///< nothing has to be done
    };
    Kind kind;
    Weight weight;
    std::string path; ///< of the song
    std::string song; ///< its title, or the album's
    bool isAlbum = false;
    std::string text;
    std::vector<std::string> near;
    std::vector<Detail> missing;
    int number = 0;
    std::int64_t time = 0; ///< seconds since 1970
    bool isWish = false;   ///< the user asked for it on the command line or in a release file
    Problem problem;
};

/// What will be handed over, and what is wrong with it.
struct Plan {
    ReleaseMode mode = ReleaseMode::kSingles; ///< never kPanel
    bool isForPanel = false;                  ///< open findings may be settled there
    std::vector<PlannedRelease> releases;
    std::vector<Finding> findings; ///< the gravest first

    bool isAlbum() const { return mode == ReleaseMode::kAlbum; }

    /// Nothing stands in the way of handing it over.
    bool canBeHandedOver() const;

    /// Nothing stands in the way of sending it.
    bool canBeSent() const;

    /// The songs of all releases, in their order.
    std::vector<const PlannedSong*> songs() const;
};

/// Decides what is handed over of the songs, and what is wrong. `songs` belong to the songs of the wish, one
/// to one.
Plan makePlan(const ReleaseWish& wish, const std::vector<SongFile>& songs, const Offer& offer);

/// Two songs of an album whose files have one name, by which the service finds a song; nothing when all
/// differ.
std::optional<std::pair<std::size_t, std::size_t>> sameNames(const std::vector<std::string>& fileNames);

} // namespace xbr::host
