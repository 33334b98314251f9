#pragma once

#include "framework/support/data/attributes.h"
#include "release/trackmetadata.h"

#include <string_view>

namespace brindlex {

/// The release document, `metadata.json`, as the service reads it. Optional keys are left out when there is
/// nothing to say; the order of the keys is the order of these calls.

/// Adds "external_release_id", "client_id", "title", "various", "main_artists" and "primary_genre".
void writeReleaseAttributes(xbr::Attributes& release, const TrackMetadata& record, std::string_view clientId);

/// Adds "title", "audio_filename", "artists" and "track_number". Without a title the song bears the file's
/// name up to its last ".".
void writeSongAttributes(xbr::Attributes& song, const TrackMetadata& record, std::string_view audioFileName);

} // namespace brindlex
