#pragma once

#include "host/app/headless/commandline/commandline.h"
#include "host/app/process/exitcodes.h"

namespace xbr::host {

/// `xbrhost genres`: lists the genres of the service, or those that a word finds. Uses neither the network
/// nor the stored sign-in.
ExitCode runGenres(const CommandLine& commandLine);

} // namespace xbr::host
