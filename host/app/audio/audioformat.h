#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace xbr::host {

/// What audio is made of, for people. What a file does not tell is 0.
struct AudioFormat {
    std::string name; ///< "WAV", "AIFF", "FLAC", "MP3", "Ogg"
    std::int64_t milliseconds = 0;
    int sampleRate = 0; ///< Hz
    int bits = 0;       ///< per sample; 0 where it was compressed with loss
    int bitRate = 0;    ///< kbit/s; where it was compressed with loss
};

/// Looks into a file; nothing when it is no audio that can be read. May read all of an MP3 file to find its
/// length. Any thread.
std::optional<AudioFormat> readAudioFormat(const std::string& path);

} // namespace xbr::host
