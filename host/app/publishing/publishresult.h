#pragma once

#include <cstdint>

namespace xbr::host {

/// What came of publishing a release.
enum class PublishResult : std::uint8_t {
    kDone,               ///< every track was taken
    kNotAllDone,         ///< some track was refused, or could not be prepared; `detail` may tell why
    kWrongPlan,          ///< `detail` tells what cannot be asked for
    kFileProblem,        ///< `detail` names the file and what is wrong
    kNoPublisher,        ///< `detail` tells what the module lacks
    kNotConfigured,      ///< the configuration report tells what is missing
    kNotSignedIn,        ///< sign-in failed or was given up
    kSignInExpired,      ///< the service does not accept the sign-in any more
    kUnreachable,        ///< `detail` tells why
    kInformationMissing, ///< nothing was taken; `incomplete` tells what is missing
    kCancelled,          ///< by the user
};

} // namespace xbr::host
