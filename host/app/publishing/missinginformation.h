#pragma once

#include "host/app/modules/gadgetpanel.h"

#include <cstdint>
#include <string>
#include <vector>

namespace xbr::host {

/// A track that lacks something that a release needs.
struct IncompleteTrack {
    std::int32_t index = 0; ///< from 0
    std::string title;
    std::vector<std::string> fields; ///< names of the track editor's parameters ("albumArtist")
};

/// Looks through the tracks of a panel with its editor. Moves the focus of the list from row to row; it ends
/// up where it was.
std::vector<IncompleteTrack> findIncompleteTracks(GadgetPanel& panel);

} // namespace xbr::host
