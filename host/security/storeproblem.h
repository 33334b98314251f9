#pragma once

#include "host/security/secretservice.h"

#include <string>

namespace xbr::host {

/// What the user reads when a credential could not be stored.
std::string storeProblemText(StoreResult result);

/// What the user reads when a credential could not be removed.
std::string removeProblemText(StoreResult result);

/// Tell the host's listener, the first time only.
void tellStoreProblem(StoreResult result);
void tellRemoveProblem(StoreResult result);

} // namespace xbr::host
