#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace xbr::host {

/// A RIFF chunk with its padding.
std::string chunk(std::string_view id, std::string_view content);

/// A LIST chunk of kind INFO.
std::string infoChunk(const std::vector<std::pair<std::string, std::string>>& fields);

/// A frame of an ID3v2.3 tag: text in UTF-8-compatible Latin-1.
struct Id3Frame {
    std::string id;
    std::string text;
    char flags = '\0'; ///< the second byte of them
};

std::string id3Tag(const std::vector<Id3Frame>& frames);

/// The content of a frame that inflates to `size` bytes of text.
std::string compressedText(std::size_t size);

/// A short recording with further chunks behind the audio.
std::string waveFile(std::string_view furtherChunks = {});

} // namespace xbr::host
