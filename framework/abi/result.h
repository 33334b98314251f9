#pragma once

#include <cstdint>

namespace xbr {

/// Outcome of a call across the border.
using Result = std::uint32_t;

constexpr Result kOk = 0;                       ///< done
constexpr Result kFalse = 1;                    ///< done; the answer is "no" or there is nothing
constexpr Result kUnexpected = 0x8000FFFF;      ///< called in the wrong state, or the work failed
constexpr Result kInvalidArgument = 0x80070057; ///< an argument is outside its documented range
constexpr Result kNoInterface =
    0x80004002; ///< the object does not have the interface, or there is no such class
constexpr Result kNotImplemented = 0x80004001; ///< the host does not offer this

/// True for kOk and kFalse.
constexpr bool succeeded(Result result) {
    return (result & 0x8000'0000U) == 0;
}

} // namespace xbr
