#pragma once

#include "host/app/window/songs/song.h"

#include <vector>

namespace xbr::host {

/// The list from run to run, in the file "xbrhost/songs.json" of the user's configuration folder: where the
/// songs are, and what the user says about them.
class SavedSongs {
public:
    /// The songs are still to be read; empty when there are none, or the file cannot be read.
    std::vector<Song> load() const;
    void save(const std::vector<Song>& songs) const;
};

} // namespace xbr::host
