#include "host/app/audio/mediasignature.h"

#include "host/app/audio/id3bounds.h"
#include "host/app/audio/riffchunks.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace xbr::host {

namespace {

/// Some programs leave a gap before the first MPEG frame.
constexpr std::size_t kMp3Search = std::size_t{64} << 10U;

/// A format and a data chunk, in this order. The length of the data chunk does not matter: it is 0 or the
/// largest number where a recording was never finished properly.
bool isWav(std::ifstream& file) {
    const auto chunks = readChunks(file);
    const auto named = [](std::string_view id) {
        return [id](const RiffChunk& chunk) { return chunk.id == id; };
    };
    const auto data = std::find_if(chunks.begin(), chunks.end(), named("data"));
    return data != chunks.end() && std::any_of(chunks.begin(), data, named("fmt "));
}

/// A frame header with neither a reserved version or layer nor a forbidden rate (ISO/IEC 11172-3, 2.4.1.3).
bool isMpegFrame(std::string_view bytes) {
    const auto at = [&](std::size_t i) {
        return static_cast<unsigned>(static_cast<unsigned char>(bytes[i]));
    };
    return bytes.size() >= 3 && at(0) == 0xFF && (at(1) & 0xE0U) == 0xE0 && (at(1) & 0x18U) != 0x08 &&
           (at(1) & 0x06U) != 0 && (at(2) & 0xF0U) != 0xF0 && (at(2) & 0x0CU) != 0x0C;
}

std::string readAt(std::ifstream& file, std::uint64_t position, std::size_t size) {
    std::string bytes(size, '\0');
    file.clear();
    file.seekg(static_cast<std::streamoff>(position));
    file.read(bytes.data(), static_cast<std::streamsize>(size));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

/// After a tag there may be anything before the first frame; without one only a gap of zeros, or every file
/// would look like an MP3 somewhere.
bool isMp3(std::string_view bytes, bool hasTag) {
    const auto first = hasTag ? 0 : bytes.find_first_not_of('\0');
    const auto last = hasTag ? bytes.size() : first + 1;
    for (auto i = first; i < last && i < bytes.size(); ++i) {
        if (isMpegFrame(bytes.substr(i))) {
            return true;
        }
    }
    return false;
}

} // namespace

MediaKind recognise(const std::string& path) {
    std::error_code ignored;
    // Not opened otherwise: opening a pipe would wait for its other end.
    if (!std::filesystem::is_regular_file(path, ignored)) {
        return MediaKind::kUnreadable;
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return MediaKind::kUnreadable;
    }
    const std::string start = readAt(file, 0, 12);
    if (isWav(file)) {
        return MediaKind::kWav;
    }
    const auto tagLength = id3Length(start);
    const std::string audio = readAt(file, tagLength, kMp3Search);
    if (audio.starts_with("fLaC")) {
        return MediaKind::kFlac;
    }
    return isMp3(audio, tagLength > 0) ? MediaKind::kMp3 : MediaKind::kUnknown;
}

} // namespace xbr::host
