#pragma once

#include "host/app/headless/commandline/commandline.h"
#include "host/app/process/exitcodes.h"

namespace xbr::host {

/// `xbrhost sign-in`: signs in through the browser, unless somebody is signed in.
ExitCode runSignIn(const CommandLine& commandLine);

/// `xbrhost sign-out`: forgets the stored sign-in.
ExitCode runSignOut(const CommandLine& commandLine);

/// `xbrhost status`: tells whether a stored sign-in can be used. Opens no browser (a locked keyring may ask
/// for its password).
ExitCode runStatus(const CommandLine& commandLine);

} // namespace xbr::host
