#pragma once

#include <cstdint>

namespace xbr::host {

/// What kind of line the user reads.
enum class NoticeKind : std::uint8_t { kNone, kInfo, kBusy, kDone, kWarning, kError };

} // namespace xbr::host
