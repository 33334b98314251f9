#include "tests/host/app/audio/wavefile.h"

#include <zlib.h>

namespace xbr::host {

namespace {

std::string littleEndian(std::uint64_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        text += static_cast<char>(value >> (8 * i) & 0xFFU);
    }
    return text;
}

std::string bigEndian(std::uint32_t value) {
    const std::string text = littleEndian(value, 4);
    return {text.rbegin(), text.rend()};
}

} // namespace

std::string chunk(std::string_view id, std::string_view content) {
    std::string bytes = std::string(id) + littleEndian(content.size(), 4) + std::string(content);
    return content.size() % 2 == 0 ? bytes : bytes + '\0';
}

std::string infoChunk(const std::vector<std::pair<std::string, std::string>>& fields) {
    std::string list = "INFO";
    for (const auto& [id, text] : fields) {
        list += chunk(id, text + '\0');
    }
    return chunk("LIST", list);
}

std::string id3Tag(const std::vector<Id3Frame>& frames) {
    std::string body;
    for (const auto& [id, text, flags] : frames) {
        const std::string content = flags == '\0' ? '\0' + text : text; // Latin-1, when it is not compressed
        body += id;
        body += bigEndian(static_cast<std::uint32_t>(content.size()));
        body += '\0';
        body += flags;
        body += content;
    }
    std::string size;
    for (int shift = 21; shift >= 0; shift -= 7) { // seven bits a byte
        size += static_cast<char>(body.size() >> shift & 0x7FU);
    }
    return std::string("ID3\x03\0\0", 6) + size + body;
}

std::string compressedText(std::size_t size) {
    const std::string text(size, '\0');
    std::string compressed(size / 500 + 100, '\0');
    auto length = static_cast<uLongf>(compressed.size());
    compress(reinterpret_cast<Bytef*>(compressed.data()), &length,
             reinterpret_cast<const Bytef*>(text.data()), static_cast<uLong>(text.size()));
    return bigEndian(static_cast<std::uint32_t>(size)) + compressed.substr(0, length);
}

std::string waveFile(std::string_view furtherChunks) {
    const std::string format = littleEndian(1, 2) + littleEndian(1, 2) + littleEndian(44100, 4) +
                               littleEndian(88200, 4) + littleEndian(2, 2) + littleEndian(16, 2);
    return chunk("RIFF", "WAVE" + chunk("fmt ", format) + chunk("data", std::string(64, '\x11')) +
                             std::string(furtherChunks));
}

} // namespace xbr::host
