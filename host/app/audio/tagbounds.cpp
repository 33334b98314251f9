#include "host/app/audio/tagbounds.h"

#include "host/app/audio/id3bounds.h"
#include "host/app/audio/riffchunks.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <string_view>

namespace xbr::host {

namespace {

constexpr std::uint64_t kMiB = std::uint64_t{1} << 20U;

/// Pictures take a few MiB, texts a few KiB.
constexpr std::uint64_t kMostTags = 64 * kMiB;
constexpr std::uint64_t kMostTexts = 4 * kMiB;

/// The tag library looks for a tag in all of an MP3 file that starts with neither a tag nor a frame.
constexpr std::uint64_t kMostSearched = 256 * kMiB;

class TagFile {
public:
    explicit TagFile(const std::string& path) : m_stream(path, std::ios::binary) {
        m_stream.seekg(0, std::ios::end);
        m_size = static_cast<std::uint64_t>(std::max<std::streamoff>(m_stream.tellg(), 0));
    }

    std::uint64_t size() const { return m_size; }
    std::ifstream& stream() { return m_stream; }

    /// What there is of `size` bytes at `position`.
    std::string read(std::uint64_t position, std::uint64_t size) {
        std::string bytes(std::min(size, m_size - std::min(position, m_size)), '\0');
        m_stream.clear();
        m_stream.seekg(static_cast<std::streamoff>(position));
        m_stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return bytes;
    }

private:
    std::ifstream m_stream;
    std::uint64_t m_size = 0;
};

std::uint32_t byteAt(std::string_view bytes, std::size_t index) {
    return static_cast<unsigned char>(bytes[index]);
}

std::uint32_t bigEndian(std::string_view bytes, unsigned bitsPerByte = 8) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        value = value << bitsPerByte | byteAt(bytes, i);
    }
    return value;
}

bool isId3AtBounded(TagFile& file, std::uint64_t position) {
    const auto length = id3Length(file.read(position, 10));
    return length <= kMostTags && (length == 0 || isId3Bounded(file.read(position, length)));
}

bool areChunksBounded(TagFile& file) {
    const auto chunks = readChunks(file.stream());
    if (chunks.size() >= kMaximumChunks) {
        return false;
    }
    return std::all_of(chunks.begin(), chunks.end(), [&](const RiffChunk& chunk) {
        if (chunk.id == "LIST") {
            return chunk.size <= kMostTexts || !file.read(chunk.position, 4).starts_with("INFO");
        }
        const bool isId3 = chunk.id == "ID3 " || chunk.id == "id3 ";
        return !isId3 || (chunk.size <= kMostTags && isId3AtBounded(file, chunk.position));
    });
}

/// The blocks before the audio (RFC 9639, 8): the tag library keeps all of them in memory.
bool areFlacBlocksBounded(TagFile& file, std::uint64_t position) {
    constexpr std::uint32_t kVorbisComment = 4;
    std::uint64_t total = 0;
    for (std::size_t blocks = 0; blocks < kMaximumChunks; ++blocks) {
        const std::string header = file.read(position, 4);
        if (header.size() < 4) {
            return true; // cut off: the library stops here, too
        }
        const auto length = bigEndian(std::string_view(header).substr(1));
        total += length;
        if (total > kMostTags || ((byteAt(header, 0) & 0x7FU) == kVorbisComment && length > kMostTexts)) {
            return false;
        }
        if ((byteAt(header, 0) & 0x80U) != 0) {
            return true;
        }
        position += 4 + length;
    }
    return false;
}

bool isFlacBounded(TagFile& file) {
    return isId3AtBounded(file, 0) && areFlacBlocksBounded(file, id3Length(file.read(0, 10)) + 4);
}

/// An APE tag ends the file, or comes before an ID3v1 tag of 128 bytes; its size is in its last 32 bytes.
bool isApeBounded(TagFile& file) {
    for (const std::uint64_t fromEnd : {std::uint64_t{32}, std::uint64_t{160}}) {
        const std::string footer = file.size() >= fromEnd ? file.read(file.size() - fromEnd, 32) : "";
        if (footer.starts_with("APETAGEX")) {
            std::string size = footer.substr(12, 4);
            std::reverse(size.begin(), size.end()); // it is little-endian
            return bigEndian(size) <= kMostTexts;
        }
    }
    return true;
}

bool isMp3Bounded(TagFile& file) {
    const std::string start = file.read(0, 10);
    const bool startsAtOnce = id3Length(start) > 0 || start.starts_with('\xFF');
    return isId3AtBounded(file, 0) && isApeBounded(file) && (startsAtOnce || file.size() <= kMostSearched);
}

} // namespace

bool areForeignTagsBounded(const std::string& path) {
    TagFile file(path);
    if (file.read(0, 4) == "OggS") {
        return file.size() <= kMostSearched; // its tags may go on as long as the file does
    }
    return !readChunks(file.stream()).empty() && areChunksBounded(file);
}

bool areTagsBounded(const std::string& path, MediaKind kind) {
    TagFile file(path);
    switch (kind) {
    case MediaKind::kWav:
        return areChunksBounded(file);
    case MediaKind::kFlac:
        return isFlacBounded(file);
    case MediaKind::kMp3:
        return isMp3Bounded(file);
    default:
        return false;
    }
}

} // namespace xbr::host
