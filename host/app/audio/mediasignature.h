#pragma once

#include <cstdint>
#include <string>

namespace xbr::host {

enum class MediaKind : std::uint8_t {
    kUnreadable, ///< no regular file, or it may not be read
    kUnknown,    ///< none of the below
    kWav,        ///< RIFF, RF64 or BW64 with a format and a data chunk
    kFlac,
    kMp3,
};

/// Tells what a file really is from its bytes. Looks at a bounded part of it, however large it is and
/// whatever it claims.
MediaKind recognise(const std::string& path);

} // namespace xbr::host
