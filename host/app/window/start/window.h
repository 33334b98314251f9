#pragma once

#include "host/app/process/exitcodes.h"
#include "host/app/window/start/windowoptions.h"

namespace xbr::host {

/// Opens the window and runs until it is closed. When this user has a window already, that one is shown and
/// gets the files.
ExitCode runWindow(int& argc, char** argv, const WindowOptions& options);

} // namespace xbr::host
