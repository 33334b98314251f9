#pragma once

#include "auth/oauth2client.h"
#include "framework/support/data/attributes.h"

namespace brindlex {

/// Writes the six values "ServerURL", "UserURL", "ConsumerKey", "ConsumerSecret", "CallbackURL" and
/// "JoinToken" into the client. A key that is absent gives an empty value; key and secret become 8-bit ASCII.
void applyConfiguration(OAuth2Client& client, const xbr::Attributes& attributes);

/// Applies what the host's configuration store has; nothing when it has none for us or cannot be read.
void loadConfiguration(OAuth2Client& client);

} // namespace brindlex
