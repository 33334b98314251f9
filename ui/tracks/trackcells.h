#pragma once

#include "framework/support/parts/listviewmodel.h"
#include "ui/tracks/trackitem.h"

#include <cstdint>

namespace brindlex {

/// The columns of the track list and what its cells show.
constexpr std::int32_t kTrackColumns = 3;

struct TrackColumn {
    const char* title;  ///< English source text
    std::int32_t width; ///< points
};

const TrackColumn& trackColumn(std::int32_t index);

xbr::Cell trackCell(const TrackItem& track, std::int32_t column);

} // namespace brindlex
