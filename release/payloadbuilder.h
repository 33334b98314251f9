#pragma once

#include "release/payload.h"
#include "release/trackmetadata.h"

#include <string_view>
#include <vector>

namespace brindlex {

/// Build a release's payload folder (`metadata.json` and a copy of each audio file in `assets/`) and pack it.
/// Empty when an audio file cannot be opened. Afterwards the caller asks `progress` whether the user
/// cancelled.
///
/// Two tracks whose files bear the same name share one copy in `assets/`: the service finds a song's audio by
/// that name alone.

/// One release of all tracks; its title, artist and genre are those of the first record. Records and files
/// belong together by their index.
xbr::Ref<IngestionRequest> buildAlbumPayload(const std::vector<xbr::Ref<TrackMetadata>>& records,
                                             const std::vector<xbr::Url>& files, std::string_view clientId,
                                             xbr::IProgress& progress);

/// A release of one track.
xbr::Ref<IngestionRequest> buildTrackPayload(const TrackMetadata& record, const xbr::Url& file,
                                             std::string_view clientId, xbr::IProgress& progress);

} // namespace brindlex
