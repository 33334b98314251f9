#pragma once

#include "framework/abi/stream.h"

#include <string>

namespace xbr::host {

/// What is left in a stream.
struct StreamContents {
    Result result; ///< kOk; kUnexpected: reading failed; kInvalidArgument: more than the limit
    std::string bytes;
};

/// Reads from the stream's position to its end, at most `limit` bytes.
StreamContents readUpTo(IStream& stream, std::uint64_t limit);

} // namespace xbr::host
