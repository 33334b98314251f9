#pragma once

#include "framework/abi/stream.h"
#include "framework/support/objects/object.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace xbr {

/// A stream in memory that grows as it is written; a write for which there is no memory fails and changes
/// nothing. A gap that was left by seeking beyond the end reads as zeros. It holds its bytes in chunks, so
/// that growing never copies what is there: a body of gigabytes needs its own size and one chunk.
class MemoryStream final : public Object<IStream> {
public:
    static constexpr std::uint64_t kChunkSize = std::uint64_t{1} << 20U;

    /// Wider gaps are refused: they would take all memory, and nobody means them.
    static constexpr std::uint64_t kWidestGap = 64 * kChunkSize;

    Result read(void* buffer, std::uint64_t size, std::uint64_t* done) noexcept override;
    Result write(const void* buffer, std::uint64_t size, std::uint64_t* done) noexcept override;
    Result seek(std::int64_t offset, SeekOrigin origin, std::int64_t* position) noexcept override;

    /// False when there is no memory for them.
    bool write(std::string_view bytes) noexcept;

    /// Reads exactly `size` bytes from the source's position into this stream's own memory, without a copy in
    /// between; false when fewer came, or there is no memory for them.
    bool writeFrom(IStream& source, std::uint64_t size) noexcept;

    std::uint64_t size() const noexcept { return m_size; }

private:
    bool grow(std::uint64_t count) noexcept;

    std::vector<std::unique_ptr<std::byte[]>> m_chunks;
    std::uint64_t m_size = 0;
    std::uint64_t m_position = 0;
};

/// Moves the position to the start; true when that worked.
bool rewind(IStream& stream) noexcept;

/// The number of bytes of a stream, found by seeking to its end; the position is at the start afterwards.
/// Negative when the stream cannot be measured.
std::int64_t measure(IStream& stream) noexcept;

/// Everything from the position to the end.
std::string readAll(IStream& stream);

} // namespace xbr
