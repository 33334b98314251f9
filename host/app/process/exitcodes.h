#pragma once

#include <cstdint>

namespace xbr::host {

/// How the program ends. Scripts rely on the numbers: they stay as they are.
enum class ExitCode : std::uint8_t {
    kDone = 0,               ///< everything was done
    kNotAllDone = 1,         ///< some track was not taken by the service, or could not be prepared
    kUsage = 2,              ///< the command line is wrong
    kFileProblem = 3,        ///< a file is missing, unreadable or of a kind that cannot be published
    kModuleProblem = 4,      ///< the module is missing, or refuses to work
    kNotSignedIn = 5,        ///< sign-in failed, was refused or given up
    kUnreachable = 6,        ///< the service does not answer
    kInformationMissing = 7, ///< nothing was sent: no track has all the information that a release needs
    kNoHost = 8,             ///< no running host takes the URL
    kNotConfigured = 9,      ///< the settings of the service are missing or incomplete
    kSignInExpired = 10,     ///< the service does not accept the stored sign-in any more
    kPublishedBefore = 11,   ///< nothing was sent: the songs were published from this computer before
    kKeyring = 12,           ///< the keyring is locked or does not answer
    kInterrupted = 130,      ///< ended by the user (Ctrl-C) or by a signal
};

} // namespace xbr::host
