#include "host/app/core/mediasignature.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace xbr::host {

namespace {

/// More chunks than this before the audio are no recording, but an attempt to keep us busy.
constexpr int kMaximumChunks = 1000;

/// Some programs leave a gap before the first MPEG frame.
constexpr std::size_t kMp3Search = std::size_t{64} << 10U;

std::uint32_t littleEndian(const char* bytes) {
    std::uint32_t value = 0;
    for (int i = 3; i >= 0; --i) {
        value = value << 8U | static_cast<unsigned char>(bytes[i]);
    }
    return value;
}

/// A format and a data chunk, in this order. The length of the data chunk does not matter: it is 0 or the
/// largest number where a recording was never finished properly, or is longer than 4 GiB.
bool hasWavChunks(std::ifstream& file) {
    bool hasFormat = false;
    std::array<char, 8> header{};
    file.seekg(12);
    for (int i = 0; i < kMaximumChunks && file.read(header.data(), header.size()); ++i) {
        const std::string_view id(header.data(), 4);
        if (id == "data") {
            return hasFormat;
        }
        hasFormat = hasFormat || id == "fmt ";
        const std::uint64_t size = littleEndian(header.data() + 4);
        file.seekg(static_cast<std::streamoff>(size + size % 2), std::ios::cur);
    }
    return false;
}

bool isWav(std::ifstream& file, std::string_view start) {
    if (start.size() < 12) {
        return false;
    }
    const auto form = start.substr(0, 4);
    return (form == "RIFF" || form == "RF64" || form == "BW64") && start.substr(8, 4) == "WAVE" &&
           hasWavChunks(file);
}

/// Length of an ID3v2 tag at the start of a file, from its header (ID3v2.4.0, 3.1); 0 when there is none.
std::size_t id3Length(std::string_view start) {
    if (start.size() < 10 || start.substr(0, 3) != "ID3") {
        return 0;
    }
    std::size_t length = 0;
    for (std::size_t i = 6; i < 10; ++i) {
        length = length << 7U | (static_cast<unsigned char>(start[i]) & 0x7FU);
    }
    return length + 10;
}

/// A frame header with neither a reserved version or layer nor a forbidden rate (ISO/IEC 11172-3, 2.4.1.3).
bool isMpegFrame(std::string_view bytes) {
    const auto at = [&](std::size_t i) {
        return static_cast<unsigned>(static_cast<unsigned char>(bytes[i]));
    };
    return bytes.size() >= 3 && at(0) == 0xFF && (at(1) & 0xE0U) == 0xE0 && (at(1) & 0x18U) != 0x08 &&
           (at(1) & 0x06U) != 0 && (at(2) & 0xF0U) != 0xF0 && (at(2) & 0x0CU) != 0x0C;
}

std::string readAt(std::ifstream& file, std::size_t position, std::size_t size) {
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
    if (isWav(file, start)) {
        return MediaKind::kWav;
    }
    const std::size_t tagLength = id3Length(start);
    const std::string audio = readAt(file, tagLength, kMp3Search);
    if (audio.starts_with("fLaC")) {
        return MediaKind::kFlac;
    }
    return isMp3(audio, tagLength > 0) ? MediaKind::kMp3 : MediaKind::kUnknown;
}

} // namespace xbr::host
