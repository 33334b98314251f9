#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace xbr::host {

/// What a media file tells about itself. What it does not tell is left out.
struct MediaTags {
    std::vector<std::pair<std::string, std::string>> texts; ///< UTF-8 by attribute name ("Media:Title")
    std::int64_t trackIndex = 0;                            ///< from 1; 0 when unknown
};

/// Reads the tags of a file; nothing when it cannot be read or is no audio.
std::optional<MediaTags> readTags(const std::string& path);

} // namespace xbr::host
