#pragma once

#include "framework/support/parts/listviewmodel.h"
#include "ui/tracks/trackitem.h"

namespace brindlex {

/// The list's items as tracks. A list model of the track list holds nothing else.
TrackItem& trackAt(const xbr::ListViewModel& model, std::size_t index);

inline std::size_t countTracks(const xbr::ListViewModel& model) {
    return model.items().size();
}

/// The track with the focus; null for none.
TrackItem* focusTrack(const xbr::ListViewModel& model);

/// Calls `action(track)` for every track in order.
template <class Action>
void forEachTrack(const xbr::ListViewModel& model, const Action& action) {
    for (std::size_t i = 0; i < countTracks(model); ++i) {
        action(trackAt(model, i));
    }
}

} // namespace brindlex
