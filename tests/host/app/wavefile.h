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

/// An ID3v2.3 tag with text frames in UTF-8-compatible Latin-1.
std::string id3Tag(const std::vector<std::pair<std::string, std::string>>& frames);

/// A short recording with further chunks behind the audio.
std::string waveFile(std::string_view furtherChunks = {});

} // namespace xbr::host
