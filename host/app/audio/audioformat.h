#pragma once

#include "host/base/problem.h"

#include <cstdint>
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

/// Looks into a file; a problem when it is no audio that can be published: none that can be read, less than
/// it says, at a rate that cannot be right, or with samples that are not numbers. May read all of an MP3 file
/// to find its length, and all of one in floating point. Any thread.
Outcome<AudioFormat> readAudioFormat(const std::string& path);

} // namespace xbr::host
