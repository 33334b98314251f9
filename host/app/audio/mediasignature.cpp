#include "host/app/audio/mediasignature.h"

#include <taglib/id3v2header.h>

#include <algorithm>
#include <filesystem>

namespace xbr::host {

namespace {

/// Some programs leave a gap before the first MPEG frame.
constexpr std::size_t kMp3Search = std::size_t{64} << 10U;
constexpr std::size_t kMostChunks = 1000;

std::uint64_t bigEndian(std::string_view bytes) {
    return littleEndian(std::string(bytes.rbegin(), bytes.rend()));
}

bool isAiff(std::string_view start) {
    return start.starts_with("FORM") && start.substr(8, 3) == "AIF";
}

bool isWave(std::string_view start) {
    const auto form = start.substr(0, 4);
    return (form == "RIFF" || form == "RF64" || form == "BW64") && start.substr(8) == "WAVE";
}

/// A format and a data chunk, in this order. The length of the data chunk does not matter: it is 0 or the
/// largest number where a recording was never finished properly.
bool isWav(std::ifstream& file) {
    const auto chunks = readChunks(file);
    const auto* format = findChunk(chunks, "fmt ");
    const auto* data = findChunk(chunks, "data");
    return format && data && format < data;
}

/// A frame header with neither a reserved version or layer nor a forbidden rate (ISO/IEC 11172-3, 2.4.1.3).
bool isMpegFrame(std::string_view bytes) {
    const auto at = [&](std::size_t i) {
        return static_cast<unsigned>(static_cast<unsigned char>(bytes[i]));
    };
    return bytes.size() >= 3 && at(0) == 0xFF && (at(1) & 0xE0U) == 0xE0 && (at(1) & 0x18U) != 0x08 &&
           (at(1) & 0x06U) != 0 && (at(2) & 0xF0U) != 0xF0 && (at(2) & 0x0CU) != 0x0C;
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

/// The length of an ID3v2 tag with its header; 0 when there is none.
std::uint64_t id3Length(const std::string& start) {
    const TagLib::ByteVector bytes(start.data(), static_cast<unsigned>(start.size()));
    return start.starts_with("ID3") ? TagLib::ID3v2::Header(bytes).completeTagSize() : 0;
}

} // namespace

std::string readAt(std::ifstream& file, std::uint64_t position, std::size_t size) {
    std::string bytes(size, '\0');
    file.clear();
    file.seekg(static_cast<std::streamoff>(position));
    file.read(bytes.data(), static_cast<std::streamsize>(size));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

std::uint64_t littleEndian(std::string_view bytes) {
    std::uint64_t value = 0;
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
        value = value << 8U | static_cast<unsigned char>(*byte);
    }
    return value;
}

std::vector<RiffChunk> readChunks(std::ifstream& file) {
    const std::string head = readAt(file, 0, 12);
    std::vector<RiffChunk> chunks;
    if (head.size() < 12 || (!isWave(head) && !isAiff(head))) {
        return chunks;
    }
    file.seekg(0, std::ios::end);
    const auto end = static_cast<std::uint64_t>(file.tellg());
    const auto number = isAiff(head) ? bigEndian : littleEndian;
    std::uint64_t longDataSize = 0;
    for (std::uint64_t position = 12; position + 8 <= end && chunks.size() < kMostChunks;) {
        const std::string header = readAt(file, position, 8);
        if (header.size() < 8) {
            break;
        }
        RiffChunk chunk{header.substr(0, 4), position + 8, number(std::string_view(header).substr(4))};
        if (chunk.id == "ds64") {
            longDataSize = littleEndian(readAt(file, chunk.position + 8, 8));
        } else if (chunk.id == "data" && chunk.size == 0xFFFFFFFF && longDataSize > 0) {
            chunk.size = longDataSize; // four bytes cannot hold it
        }
        chunk.size = std::min(chunk.size, end - chunk.position);
        position = chunk.position + chunk.size + chunk.size % 2;
        chunks.push_back(std::move(chunk));
    }
    return chunks;
}

const RiffChunk* findChunk(const std::vector<RiffChunk>& chunks, std::string_view id) {
    const auto found =
        std::find_if(chunks.begin(), chunks.end(), [id](const RiffChunk& chunk) { return chunk.id == id; });
    return found == chunks.end() ? nullptr : &*found;
}

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
    if (isWav(file)) {
        return MediaKind::kWav;
    }
    const auto tagLength = id3Length(readAt(file, 0, 10));
    const std::string audio = readAt(file, tagLength, kMp3Search);
    if (audio.starts_with("fLaC")) {
        return MediaKind::kFlac;
    }
    return isMp3(audio, tagLength > 0) ? MediaKind::kMp3 : MediaKind::kUnknown;
}

} // namespace xbr::host
