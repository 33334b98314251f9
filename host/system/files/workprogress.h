#pragma once

#include "host/system/files/backgroundwork.h"

#include <string_view>

namespace xbr::host {

/// Runs `work` as runReporting does, on behalf of the indicator that the front end shows (setWorkProgress);
/// at once and on this thread when it shows none. kFalse, too, when the user has cancelled already.
Result runForIndicator(std::string_view what, const PackageWork& work);

/// Tells the indicator, some times a second, that reading goes on. False when the user cancelled: who reads
/// gives up. Runs the event loop.
bool keepIndicatorAlive();

} // namespace xbr::host
