#pragma once

#include <string>
#include <vector>

namespace xbr::host {

/// What the window opens with.
struct WindowOptions {
    std::string module;             ///< path; empty for the usual ones
    std::vector<std::string> files; ///< songs, as bytes
};

} // namespace xbr::host
