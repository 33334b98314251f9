#include "framework/support/data/memorystream.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <new>

namespace {

std::size_t g_chunksLeft = SIZE_MAX; ///< that memory can be had for

} // namespace

/// Memory that ends when a test says so.
void* operator new[](std::size_t size) {
    if (size == xbr::MemoryStream::kChunkSize && g_chunksLeft-- == 0) {
        g_chunksLeft = 0;
        throw std::bad_alloc();
    }
    return operator new(size);
}
void operator delete[](void* memory) noexcept {
    operator delete(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
    operator delete(memory);
}

namespace {

using xbr::MemoryStream;

/// A pattern that shows a byte in the wrong place.
std::string pattern(std::size_t size) {
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i) {
        bytes[i] = static_cast<char>((i * 31 + i / 251) & 0xFFU);
    }
    return bytes;
}

TEST(MemoryStream, SeeksOverwritesAndFillsGaps) {
    const auto stream = xbr::make<MemoryStream>();
    stream->write("0123456789");
    EXPECT_EQ(stream->seek(-4, xbr::SeekOrigin::kEnd, nullptr), xbr::kOk);
    stream->write("ab");
    std::int64_t position = 0;
    EXPECT_EQ(stream->seek(4, xbr::SeekOrigin::kCurrent, &position), xbr::kOk);
    EXPECT_EQ(position, 12);
    stream->write("z");
    EXPECT_EQ(stream->seek(-1, xbr::SeekOrigin::kStart, nullptr), xbr::kInvalidArgument);
    xbr::rewind(*stream);
    EXPECT_EQ(xbr::readAll(*stream), (std::string("012345ab89\0\0z", 13)));
}

TEST(MemoryStream, RefusesWhatItCannotHold) {
    constexpr auto kFarthest = std::numeric_limits<std::int64_t>::max();
    const auto stream = xbr::make<MemoryStream>();
    const auto from = xbr::make<MemoryStream>();
    EXPECT_TRUE(stream->write("bytes"));
    EXPECT_EQ(stream->seek(kFarthest, xbr::SeekOrigin::kStart, nullptr), xbr::kOk);
    EXPECT_EQ(stream->seek(kFarthest, xbr::SeekOrigin::kCurrent, nullptr), xbr::kInvalidArgument);
    EXPECT_EQ(stream->seek(kFarthest, xbr::SeekOrigin::kEnd, nullptr), xbr::kInvalidArgument);
    EXPECT_EQ(stream->seek(std::numeric_limits<std::int64_t>::min(), xbr::SeekOrigin::kEnd, nullptr),
              xbr::kInvalidArgument);
    EXPECT_FALSE(stream->write("far")) << "the gap would take all memory";
    EXPECT_FALSE(stream->writeFrom(*from, UINT64_MAX));
    xbr::rewind(*stream);
    EXPECT_FALSE(stream->writeFrom(*from, UINT64_MAX));

    const std::string bytes = pattern(3 * MemoryStream::kChunkSize);
    EXPECT_TRUE(from->write(bytes) && xbr::rewind(*from));
    stream->seek(0, xbr::SeekOrigin::kEnd, nullptr);
    std::uint64_t done = 1;
    for (const std::size_t chunks : {0U, 1U}) {
        g_chunksLeft = chunks;
        EXPECT_EQ(stream->write(bytes.data(), bytes.size(), &done), xbr::kUnexpected);
        EXPECT_EQ(done, 0U);
        g_chunksLeft = chunks;
        EXPECT_FALSE(stream->writeFrom(*from, bytes.size()));
        EXPECT_EQ(stream->size(), 5U);
    }
    g_chunksLeft = SIZE_MAX;
    EXPECT_TRUE(stream->write(bytes)) << "as if nothing had been";
    xbr::rewind(*stream);
    EXPECT_TRUE(xbr::readAll(*stream) == "bytes" + bytes);
}

/// Bytes that are read straight into the chunks land where written ones would.
TEST(MemoryStream, KeepsAndCopiesBytesAcrossChunks) {
    const std::string bytes = pattern(2 * MemoryStream::kChunkSize + 100);
    const auto from = xbr::make<MemoryStream>();
    const auto to = xbr::make<MemoryStream>();
    for (std::size_t at = 0; at < bytes.size(); at += 777'777) { // odd pieces, so that writes straddle chunks
        from->write(std::string_view(bytes).substr(at, 777'777));
    }
    EXPECT_EQ(xbr::measure(*from), static_cast<std::int64_t>(bytes.size()));
    to->write("head");
    EXPECT_TRUE(to->writeFrom(*from, bytes.size()));
    EXPECT_FALSE(to->writeFrom(*from, 1)) << "the source ends early";
    to->write("tail");
    xbr::rewind(*to);
    EXPECT_TRUE(xbr::readAll(*to) == "head" + bytes + "tail");
    EXPECT_EQ(xbr::readAll(*to), "") << "at the end";
}

} // namespace
