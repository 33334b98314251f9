#pragma once

#include "framework/abi/hostclasses.h"
#include "framework/support/data/attributes.h"
#include "framework/support/objects/object.h"

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

/// Reads the tags of a file that modules take as it is (WAV, FLAC, MP3); nothing when it cannot be read or is
/// none.
std::optional<MediaTags> readTags(const std::string& path);

/// Reads the tags of any other audio: what TagLib and libsndfile find in it.
MediaTags readForeignTags(const std::string& path);

/// Writes tags into a WAV file that was rendered, as far as its format has room for them; without them it is
/// as good.
void writeWavTags(const std::string& path, const MediaTags& tags);

/// The tags as modules are given them.
Ref<Attributes> attributesOf(const MediaTags& tags);

/// Reads tags with TagLib: of WAV files the ID3v2 and the INFO chunk, of others what TagLib knows. A file
/// whose bytes are no audio that we know is refused, whatever its name says; damaged tags are left out.
class MediaFileInfo final : public Object<IMediaFileInfo> {
public:
    Result open(Text url) noexcept override;
    Result getAttributes(IAttributes* out) noexcept override;

private:
    Ref<Attributes> m_attributes; ///< empty while no file is open
};

} // namespace xbr::host
