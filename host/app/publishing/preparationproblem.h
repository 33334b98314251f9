#pragma once

#include "host/app/publishing/trackfollower.h"

#include <string>
#include <vector>

namespace xbr::host {

/// Finds out why tracks could not be prepared for their upload. Modules do not say; what they could not read,
/// copy or write went through the host, though. One line in plain words; empty when nothing is known.
std::string findPreparationProblem(const std::vector<TrackReport>& tracks);

} // namespace xbr::host
