#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

namespace xbr::host {

/// Gathers small writes to a file into large ones, also where they go back and change what was just written.
class WriteBuffer {
public:
    static constexpr std::size_t kCapacity = std::size_t{1} << 20U;

    /// Begins with an empty buffer; what was not flushed is dropped.
    void start(int descriptor);

    /// False when the medium failed; errno says why.
    bool write(std::int64_t position, std::span<const std::byte> bytes);
    bool flush();

private:
    int m_descriptor = -1;
    std::unique_ptr<std::byte[]> m_bytes = std::make_unique_for_overwrite<std::byte[]>(kCapacity);
    std::int64_t m_start = 0; ///< where in the file the buffer's first byte belongs
    std::size_t m_used = 0;
};

} // namespace xbr::host
