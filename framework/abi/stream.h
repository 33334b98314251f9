#pragma once

#include "framework/abi/object.h"

namespace xbr {

enum class SeekOrigin : std::int32_t { kStart = 0, kCurrent = 1, kEnd = 2 };

/// A readable or writable row of bytes with a position.
struct IStream : IObject {
    static constexpr Uid kUid = uid("22fe8d24-83fd-40e0-8f9c-64f23eab7028");

    /// Reads up to `size` bytes from the position and moves it. *done is how many came; fewer than `size`
    /// means that the end was reached. kUnexpected: reading failed; *done bytes are valid.
    virtual Result read(void* buffer, std::uint64_t size, std::uint64_t* done) noexcept = 0;

    /// Writes `size` bytes at the position and moves it. kUnexpected: the medium is full or broken, *done
    /// bytes were written; kNotImplemented: the stream is for reading only.
    virtual Result write(const void* buffer, std::uint64_t size, std::uint64_t* done) noexcept = 0;

    /// Moves the position and answers the new one through *position (may be null). kInvalidArgument when it
    /// would lie before the start.
    virtual Result seek(std::int64_t offset, SeekOrigin origin, std::int64_t* position) noexcept = 0;
};

} // namespace xbr
