#include "framework/support/data/memorystream.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>

namespace xbr {

namespace {

constexpr auto kFarthest =
    static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()); // that can be sought

/// Calls `step(chunk, offset, count)` for the pieces of chunks that make up [position, position + size).
template <class Step>
void forEachPiece(std::uint64_t position, std::uint64_t size, const Step& step) {
    while (size > 0) {
        const auto offset = position % MemoryStream::kChunkSize;
        const auto count = std::min(size, MemoryStream::kChunkSize - offset);
        step(static_cast<std::size_t>(position / MemoryStream::kChunkSize), offset, count);
        position += count;
        size -= count;
    }
}

} // namespace

Result MemoryStream::read(void* buffer, std::uint64_t size, std::uint64_t* done) noexcept {
    const auto available = m_position < m_size ? m_size - m_position : 0;
    const auto count = std::min(size, available);
    auto* target = static_cast<std::byte*>(buffer);
    forEachPiece(m_position, count, [&](std::size_t chunk, std::uint64_t offset, std::uint64_t piece) {
        std::memcpy(target, m_chunks[chunk].get() + offset, piece);
        target += piece;
    });
    m_position += count;
    if (done) {
        *done = count;
    }
    return kOk;
}

/// Makes room for `count` bytes at the position. False, with the size as it was, when there is none.
bool MemoryStream::grow(std::uint64_t count) noexcept {
    const auto gap = m_position > m_size ? m_position - m_size : 0;
    std::uint64_t size = 0;
    if (gap > kWidestGap || __builtin_add_overflow(m_position, count, &size) || size > kFarthest) {
        return false;
    }
    try {
        while (m_chunks.size() * kChunkSize < size) {
            // Uninitialised on purpose: a gigabyte that is about to be written need not be cleared first.
            m_chunks.push_back(std::make_unique_for_overwrite<std::byte[]>(kChunkSize));
        }
    } catch (const std::bad_alloc&) {
        return false; // an archive can be larger than the machine's memory
    }
    forEachPiece(m_size, gap, [&](std::size_t chunk, std::uint64_t offset, std::uint64_t piece) {
        std::memset(m_chunks[chunk].get() + offset, 0, piece);
    });
    m_size = std::max(m_size, size);
    return true;
}

Result MemoryStream::write(const void* buffer, std::uint64_t size, std::uint64_t* done) noexcept {
    const bool hasRoom = size == 0 || grow(size);
    if (done) {
        *done = hasRoom ? size : 0;
    }
    if (!hasRoom) {
        return kUnexpected;
    }
    const auto* source = static_cast<const std::byte*>(buffer);
    forEachPiece(m_position, size, [&](std::size_t chunk, std::uint64_t offset, std::uint64_t piece) {
        std::memcpy(m_chunks[chunk].get() + offset, source, piece);
        source += piece;
    });
    m_position += size;
    return kOk;
}

bool MemoryStream::writeFrom(IStream& source, std::uint64_t size) noexcept {
    const auto before = m_size;
    if (!grow(size)) {
        return false;
    }
    bool isWhole = true;
    std::uint64_t came = 0;
    forEachPiece(m_position, size, [&](std::size_t chunk, std::uint64_t offset, std::uint64_t piece) {
        std::uint64_t done = 0;
        isWhole =
            isWhole && source.read(m_chunks[chunk].get() + offset, piece, &done) == kOk && done == piece;
        came += isWhole ? piece : 0;
    });
    m_position += came;
    m_size = came > 0 ? std::max(before, m_position) : before;
    return isWhole;
}

bool MemoryStream::write(std::string_view bytes) noexcept {
    return write(bytes.data(), bytes.size(), nullptr) == kOk;
}

Result MemoryStream::seek(std::int64_t offset, SeekOrigin origin, std::int64_t* position) noexcept {
    std::int64_t base = 0;
    if (origin == SeekOrigin::kCurrent) {
        base = static_cast<std::int64_t>(m_position);
    } else if (origin == SeekOrigin::kEnd) {
        base = static_cast<std::int64_t>(m_size);
    }
    std::int64_t sought = 0;
    if (__builtin_add_overflow(base, offset, &sought) || sought < 0) {
        return kInvalidArgument;
    }
    m_position = static_cast<std::uint64_t>(sought);
    if (position) {
        *position = sought;
    }
    return kOk;
}

bool rewind(IStream& stream) noexcept {
    return stream.seek(0, SeekOrigin::kStart, nullptr) == kOk;
}

std::int64_t measure(IStream& stream) noexcept {
    std::int64_t size = -1;
    if (stream.seek(0, SeekOrigin::kEnd, &size) != kOk || !rewind(stream)) {
        return -1;
    }
    return size;
}

std::string readAll(IStream& stream) {
    static constexpr std::size_t kPiece = 65536;
    std::string bytes;
    for (;;) {
        const auto start = bytes.size();
        bytes.resize(start + kPiece);
        std::uint64_t done = 0;
        const Result result = stream.read(bytes.data() + start, kPiece, &done);
        bytes.resize(start + static_cast<std::size_t>(done));
        if (result != kOk || done < kPiece) {
            return bytes;
        }
    }
}

} // namespace xbr
