#pragma once

#include <cstddef>
#include <cstdint>

namespace xbr::host {

/// Objects and arrays inside each other, the document itself included.
constexpr std::size_t kMaximumJsonDepth = 64;

constexpr std::uint64_t kMaximumJsonSize = std::uint64_t{64} << 20U;

} // namespace xbr::host
