#pragma once

#include "host/security/secretservice.h"

#include <string>

namespace xbr::host {

/// What the user reads when a credential could not be stored.
std::string storeProblemText(StoreResult result);

/// Tells the host's listener, the first time only.
void tellStoreProblem(StoreResult result);

} // namespace xbr::host
