#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace xbr::host {

/// Deflates rows of bytes (RFC 1951) that are cut into pieces, each for itself, so that several threads can
/// share one row. Each thread needs a deflater of its own.
class Deflater {
public:
    /// The most that a piece of `size` bytes becomes.
    static std::size_t bound(std::size_t size);

    Deflater();

    /// Deflates a piece into `out`, which has room for bound(piece.size()) bytes, and answers how many it
    /// became; 0 when that failed. The results of a row's pieces, put behind each other, are the row
    /// deflated.
    std::size_t deflate(std::span<const std::byte> piece, bool isLast, std::span<std::byte> out);

private:
    std::vector<std::byte> m_levelBuffer;
};

/// The check sum of a ZIP entry (CRC-32, ISO 3309).
std::uint32_t checkSum(std::span<const std::byte> bytes);

/// The check sum of a row from those of its two parts.
std::uint32_t joinedCheckSum(std::uint32_t first, std::uint32_t second, std::size_t secondSize);

} // namespace xbr::host
