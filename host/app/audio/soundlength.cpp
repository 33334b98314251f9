#include "host/app/audio/soundlength.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <optional>
#include <string_view>

namespace xbr::host {

namespace {

/// More chunks than this are no recording, but an attempt to keep us busy.
constexpr int kMaximumChunks = 1000;

/// The largest page of an Ogg stream (RFC 3533, 6).
constexpr std::streamoff kOggPage = 65307;

std::uint32_t bigEndian(std::string_view bytes) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        value = value << 8U | static_cast<unsigned char>(bytes[i]);
    }
    return value;
}

/// The number of frames that the common chunk of an AIFF file tells (AIFF 1.3, "Common Chunk").
std::optional<std::uint32_t> framesOfAiff(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    file.seekg(12);
    std::array<char, 8> header{};
    for (int i = 0; i < kMaximumChunks && file.read(header.data(), header.size()); ++i) {
        const std::string_view start(header.data(), header.size());
        if (start.substr(0, 4) == "COMM") {
            std::array<char, 6> common{}; // channels, frames
            file.read(common.data(), common.size());
            return file ? std::optional(bigEndian({common.data() + 2, 4})) : std::nullopt;
        }
        const std::uint64_t size = bigEndian(start.substr(4));
        file.seekg(static_cast<std::streamoff>(size + size % 2), std::ios::cur);
    }
    return std::nullopt;
}

/// True for a stream whose last page is not marked as its last (RFC 3533, 6: header type 0x04).
bool lacksEndOfOgg(const std::string& path) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    const std::streamoff size = file.tellg();
    const std::streamoff start = std::max<std::streamoff>(size - 2 * kOggPage, 0);
    file.seekg(start);
    std::string tail(static_cast<std::size_t>(size - start), '\0');
    file.read(tail.data(), static_cast<std::streamsize>(tail.size()));
    const auto page = tail.rfind("OggS");
    static constexpr std::size_t kHeaderType = 5;
    return page == std::string::npos || page + kHeaderType >= tail.size() ||
           (static_cast<unsigned char>(tail[page + kHeaderType]) & 0x04U) == 0;
}

/// Compressed AIFF counts packets, not frames.
bool isPlain(int subtype) {
    static constexpr std::array kPlain{SF_FORMAT_PCM_S8, SF_FORMAT_PCM_U8, SF_FORMAT_PCM_16, SF_FORMAT_PCM_24,
                                       SF_FORMAT_PCM_32, SF_FORMAT_FLOAT,  SF_FORMAT_DOUBLE};
    return std::find(kPlain.begin(), kPlain.end(), subtype) != kPlain.end();
}

} // namespace

bool isCutShort(const std::string& path, const SF_INFO& info) {
    switch (info.format & SF_FORMAT_TYPEMASK) {
    case SF_FORMAT_AIFF:
        return isPlain(info.format & SF_FORMAT_SUBMASK) &&
               framesOfAiff(path).value_or(0) > static_cast<std::uint64_t>(info.frames);
    case SF_FORMAT_OGG:
        return lacksEndOfOgg(path);
    default:
        return false;
    }
}

} // namespace xbr::host
