#pragma once

#include "host/app/headless/commandline/commandline.h"
#include "host/app/process/exitcodes.h"

namespace xbr::host {

/// `xbrhost publish`: runs until all files were dealt with.
ExitCode runPublish(const CommandLine& commandLine);

} // namespace xbr::host
