#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

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

/// What there is of `size` bytes at `position`.
std::string readAt(std::ifstream& file, std::uint64_t position, std::size_t size);

/// A number of up to eight bytes, the lowest first.
std::uint64_t littleEndian(std::string_view bytes);

/// A chunk of a WAVE file (RIFF, RF64: EBU Tech 3306, BW64: ITU-R BS.2088) or of an AIFF file (EA IFF 85).
struct RiffChunk {
    std::string id;
    std::uint64_t position = 0; ///< of its first byte in the file
    std::uint64_t size = 0;     ///< in bytes, as far as the file goes
};

/// The chunks in their order, none when it is no such file. Reads the headers only, and a thousand at most:
/// more are no recording, but an attempt to keep us busy.
std::vector<RiffChunk> readChunks(std::ifstream& file);

/// The chunk of that name; null when there is none.
const RiffChunk* findChunk(const std::vector<RiffChunk>& chunks, std::string_view id);

} // namespace xbr::host
