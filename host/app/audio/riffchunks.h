#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace xbr::host {

/// A chunk of a WAVE file (RIFF, RF64: EBU Tech 3306, BW64: ITU-R BS.2088) or of an AIFF file (EA IFF 85).
struct RiffChunk {
    std::string id;
    std::uint64_t position = 0; ///< of its first byte in the file
    std::uint64_t size = 0;     ///< in bytes, as far as the file goes
};

/// More chunks than this are no recording, but an attempt to keep us busy.
constexpr std::size_t kMaximumChunks = 1000;

/// A number of up to eight bytes, the lowest first.
std::uint64_t littleEndian(std::string_view bytes);

/// The chunks in their order, at most `kMaximumChunks`; none when it is no such file. Reads the headers
/// only.
std::vector<RiffChunk> readChunks(std::ifstream& file);

} // namespace xbr::host
