#pragma once

#include "framework/abi/stream.h"
#include "framework/support/objects/ref.h"

#include <cstddef>
#include <cstdint>

namespace xbr::host {

/// What a request sends: the bytes of a stream from the position where it stands to its end. The length is
/// fixed when the body is opened; bytes that are appended later are not sent.
class RequestBody {
public:
    RequestBody() = default;

    /// Measures the stream (null: no body) and keeps it. False when it cannot be measured.
    bool open(IStream* stream);

    bool exists() const noexcept { return static_cast<bool>(m_stream); }
    std::int64_t size() const noexcept { return m_size; }

    /// Reads the next bytes. False when fewer than announced can be read.
    bool read(char* buffer, std::size_t size, std::size_t& done);

    /// How many bytes were read.
    std::int64_t position() const noexcept { return m_read; }

    /// Goes back to `offset` from the start of the body, to send it from there again.
    bool rewindTo(std::int64_t offset);

private:
    Ref<IStream> m_stream;
    std::int64_t m_start = 0;
    std::int64_t m_size = 0;
    std::int64_t m_read = 0;
};

} // namespace xbr::host
