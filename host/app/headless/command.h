#pragma once

#include "host/app/process/exitcodes.h"

#include <string>
#include <vector>

namespace xbr::host {

/// Runs the program on the command line. `arguments` are those behind the program's name, as bytes: Qt
/// converts what it gets, and names of files are bytes.
ExitCode runCommand(int& argc, char** argv, const std::vector<std::string>& arguments);

} // namespace xbr::host
