#pragma once

#include "host/app/core/exitcodes.h"
#include "host/app/headless/commandline.h"

namespace xbr::host {

/// `xbrhost publish`: runs until all files were dealt with.
ExitCode runPublish(const CommandLine& commandLine);

} // namespace xbr::host
