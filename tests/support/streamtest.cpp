#include "framework/support/data/memorystream.h"

#include <gtest/gtest.h>

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

TEST(MemoryStream, KeepsBytesAcrossChunks) {
    const std::string bytes = pattern(3 * MemoryStream::kChunkSize + 17);
    const auto stream = xbr::make<MemoryStream>();
    for (std::size_t at = 0; at < bytes.size();) { // odd pieces, so that writes straddle chunks
        const auto piece = std::min<std::size_t>(777'777, bytes.size() - at);
        stream->write(std::string_view(bytes).substr(at, piece));
        at += piece;
    }
    EXPECT_EQ(xbr::measure(*stream), static_cast<std::int64_t>(bytes.size()));
    EXPECT_EQ(xbr::readAll(*stream), bytes);
    EXPECT_EQ(xbr::readAll(*stream), "") << "at the end";
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

TEST(MemoryStream, CopiesExactlyWhatIsAsked) {
    const auto from = xbr::make<MemoryStream>();
    const auto to = xbr::make<MemoryStream>();
    from->write("abcdef");
    xbr::rewind(*from);
    EXPECT_TRUE(xbr::copyStream(*from, *to, 4));
    EXPECT_FALSE(xbr::copyStream(*from, *to, 4)) << "the source ends early";
    EXPECT_EQ(to->size(), 4U);
    xbr::IStream& any = *to;
    EXPECT_FALSE(xbr::copyStream(*from, any, 4)) << "the source ends early";
    EXPECT_EQ(to->size(), 4U);
}

/// Bytes that are read straight into the chunks land where written ones would.
TEST(MemoryStream, TakesLongSourcesInTheMiddleOfAChunk) {
    const std::string bytes = pattern(2 * MemoryStream::kChunkSize + 100);
    const auto from = xbr::make<MemoryStream>();
    const auto to = xbr::make<MemoryStream>();
    from->write(bytes);
    xbr::rewind(*from);
    to->write("head");
    EXPECT_TRUE(xbr::copyStream(*from, *to, bytes.size()));
    to->write("tail");
    xbr::rewind(*to);
    EXPECT_TRUE(xbr::readAll(*to) == "head" + bytes + "tail");
}

} // namespace
