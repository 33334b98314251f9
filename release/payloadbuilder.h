#pragma once

#include "release/payload.h"
#include "release/trackmetadata.h"

#include <string_view>
#include <vector>

namespace brindlex {

/// Builds a release's payload folder (`metadata.json` and a copy of each audio file in `assets/`) and packs
/// it: one release of all tracks, or of the one track; its title, artist and genre are those of the first
/// record. Records and files belong together by their index. Empty when an audio file cannot be opened.
/// Afterwards the caller asks `progress` whether the user cancelled.
///
/// Two tracks whose files bear the same name share one copy in `assets/`: the service finds a song's audio by
/// that name alone.
xbr::Ref<IngestionRequest> buildPayload(const std::vector<xbr::Ref<TrackMetadata>>& records,
                                        const std::vector<xbr::Url>& files, std::string_view clientId,
                                        xbr::IProgress& progress);

} // namespace brindlex
