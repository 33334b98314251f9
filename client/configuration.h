#pragma once

#include "auth/serviceconfiguration.h"
#include "framework/support/data/attributes.h"

#include <optional>

namespace brindlex {

/// Reads the six values "ServerURL", "UserURL", "ConsumerKey", "ConsumerSecret", "CallbackURL" and
/// "JoinToken". A key that is absent gives an empty value; key and secret become 8-bit ASCII.
ServiceConfiguration readConfiguration(const xbr::Attributes& attributes);

/// Asks the host's configuration store; empty when it has nothing for us or cannot be read.
std::optional<ServiceConfiguration> loadStoredConfiguration();

} // namespace brindlex
