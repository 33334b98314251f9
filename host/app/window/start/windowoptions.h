#pragma once

#include "host/base/problem.h"

#include <string>
#include <vector>

namespace xbr::host {

/// What the window opens with.
struct WindowOptions {
    std::string module;             ///< path; empty for the usual ones
    std::vector<std::string> files; ///< songs, as bytes
};

/// True when the arguments behind the program's name ask for the window: there are none, or the first is
/// "window".
bool isForWindow(const std::vector<std::string>& arguments);

/// Reads "window [--module PATH] [--] [FILE]...".
Outcome<WindowOptions> parseWindowOptions(const std::vector<std::string>& arguments);

} // namespace xbr::host
