#include "host/app/audio/id3bounds.h"

#include <taglib/id3v2synchdata.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <zlib.h>

namespace xbr::host {

namespace {

constexpr std::size_t kMiB = std::size_t{1} << 20U;
constexpr std::size_t kMostInflated = 16 * kMiB;
constexpr std::size_t kMostFrames = 10000;

/// A tag of version 2 has short frames that cannot be told from other bytes; pictures made it this large at
/// most.
constexpr std::uint64_t kMostOfVersion2 = 4 * kMiB;

std::uint32_t byteAt(std::string_view bytes, std::size_t index) {
    return static_cast<unsigned char>(bytes[index]);
}

/// Bytes that look like a frame's header of version 3 or 4, identifier and the upper byte of the size
/// (ID3v2.4.0, 4). Where the frames really are is up to who reads the tag: programs disagree about their
/// sizes.
bool looksLikeFrame(std::string_view bytes) {
    const auto isIdentifier = [](unsigned char c) { return std::isupper(c) != 0 || std::isdigit(c) != 0; };
    return bytes.size() > 10 && std::all_of(bytes.begin(), bytes.begin() + 4, isIdentifier) && bytes[4] < 8;
}

/// What the data inflates to (RFC 1950), as far as `limit`; 0 or little more for what is no such data.
std::size_t inflatedSize(std::string_view data, std::size_t limit) {
    z_stream stream{};
    if (inflateInit(&stream) != Z_OK) {
        return limit;
    }
    std::array<Bytef, 16384> output{};
    // zlib does not change its input, it only fails to say so.
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data.data()));
    stream.avail_in = static_cast<uInt>(data.size());
    int result = Z_OK;
    while (result == Z_OK && stream.total_out < limit) {
        stream.next_out = output.data();
        stream.avail_out = output.size();
        result = inflate(&stream, Z_NO_FLUSH);
    }
    const std::size_t size = stream.total_out;
    inflateEnd(&stream);
    return size;
}

/// What a frame's data inflates to when it says that it is compressed. It starts behind up to six bytes that
/// other flags ask for.
std::size_t inflatedFrame(std::string_view frame, unsigned version) {
    constexpr std::size_t kHeader = 10;
    const auto compressed = version >= 4 ? 0x08U : 0x80U;
    std::size_t most = 0;
    if ((byteAt(frame, 9) & compressed) != 0) {
        for (auto i = kHeader; i <= kHeader + 6 && i < frame.size(); ++i) {
            most = std::max(most, inflatedSize(frame.substr(i), kMostInflated));
        }
    }
    return most;
}

bool areFramesBounded(std::string_view frames, unsigned version) {
    std::size_t count = 0;
    std::size_t inflated = 0;
    for (std::size_t i = 0; i < frames.size(); ++i) {
        const auto rest = frames.substr(i);
        if (looksLikeFrame(rest)) {
            inflated += inflatedFrame(rest, version);
            if (++count > kMostFrames || inflated >= kMostInflated) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

std::uint64_t id3Length(std::string_view start) {
    if (start.size() < 10 || !start.starts_with("ID3")) {
        return 0;
    }
    std::uint64_t length = 0;
    for (std::size_t i = 6; i < 10; ++i) {
        length = length << 7U | (byteAt(start, i) & 0x7FU);
    }
    return 10 + length;
}

bool isId3Bounded(std::string_view tag) {
    const auto length = id3Length(tag);
    if (length == 0) {
        return true;
    }
    const auto version = byteAt(tag, 3);
    if (version < 3) {
        return length <= kMostOfVersion2;
    }
    const bool isUnsynchronised = version == 3 && (byteAt(tag, 5) & 0x80U) != 0;
    TagLib::ByteVector bytes(tag.data(), static_cast<unsigned>(std::min<std::uint64_t>(tag.size(), length)));
    if (isUnsynchronised) {
        bytes = TagLib::ID3v2::SynchData::decode(bytes);
    }
    return areFramesBounded({bytes.data(), bytes.size()}, version);
}

} // namespace xbr::host
