#pragma once

#include "auth/oauth2tokens.h"

#include <string_view>

namespace brindlex {

/// Keeps the tokens in the system credential store, under a target name. True when the store took them; an
/// older credential of ours is replaced.
bool storeTokens(const OAuth2Tokens& tokens, std::string_view credentialName);

/// Finds the tokens again. False, and the record as it was, when there are none, when the credential of that
/// name is not ours (it is left alone), or when the store cannot be read. The id token and the expiry time
/// are not kept and stay as they were.
bool loadTokens(OAuth2Tokens& tokens, std::string_view credentialName);

/// Removes the credential of that target name.
void removeTokens(std::string_view credentialName);

} // namespace brindlex
