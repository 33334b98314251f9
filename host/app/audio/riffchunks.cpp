#include "host/app/audio/riffchunks.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace xbr::host {

namespace {

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

/// Reads `size` bytes of the file at `position`; zeros where there are none.
template <std::size_t size>
std::array<char, size> readAt(std::ifstream& file, std::uint64_t position) {
    std::array<char, size> bytes{};
    file.clear();
    file.seekg(static_cast<std::streamoff>(position));
    file.read(bytes.data(), bytes.size());
    return bytes;
}

} // namespace

std::uint64_t littleEndian(std::string_view bytes) {
    std::uint64_t value = 0;
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
        value = value << 8U | static_cast<unsigned char>(*byte);
    }
    return value;
}

std::vector<RiffChunk> readChunks(std::ifstream& file) {
    file.clear();
    file.seekg(0, std::ios::end);
    const auto end = static_cast<std::uint64_t>(std::max<std::streamoff>(file.tellg(), 0));
    const auto start = readAt<12>(file, 0);
    std::vector<RiffChunk> chunks;
    const std::string_view head(start.data(), start.size());
    if (!isWave(head) && !isAiff(head)) {
        return chunks;
    }
    const auto number = isAiff(head) ? bigEndian : littleEndian;
    std::uint64_t longDataSize = 0;
    for (std::uint64_t position = 12; position + 8 <= end && chunks.size() < kMaximumChunks;) {
        const auto header = readAt<8>(file, position);
        RiffChunk chunk{{header.data(), 4}, position + 8, number({header.data() + 4, 4})};
        if (chunk.id == "ds64") {
            const auto sizes = readAt<16>(file, chunk.position);
            longDataSize = littleEndian({sizes.data() + 8, 8});
        } else if (chunk.id == "data" && chunk.size == 0xFFFFFFFF && longDataSize > 0) {
            chunk.size = longDataSize; // four bytes cannot hold it
        }
        chunk.size = std::min(chunk.size, end - chunk.position);
        position = chunk.position + chunk.size + chunk.size % 2;
        chunks.push_back(std::move(chunk));
    }
    return chunks;
}

} // namespace xbr::host
