#pragma once

#include "framework/abi/stream.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace brindlex {

/// What the token endpoint gave us.
struct OAuth2Tokens {
    std::string extraData;      ///< third part of the stored text; no other part of the system writes it
    std::string idToken;        ///< in memory only
    std::string refreshToken;   ///< stored; never sent back to the service
    std::string accessToken;    ///< the Bearer password; stored
    std::int64_t expiresAt = 0; ///< seconds since 1970; 0 when unknown. In memory only and never consulted
};

/// Reads a token reply (JSON, RFC 6749 section 5.1) into the record; `now` is the system time. The body is
/// read from its start. False when it is no JSON object; the record is as it was then. Whether any token came
/// is not looked at. An "expires_in" that is absent or null leaves `expiresAt` as it was.
bool parseTokenReply(OAuth2Tokens& tokens, xbr::IStream& body, std::int64_t now);

/// The text that is stored: the access token, "&" and the refresh token, "&" and the extra data. An empty
/// refresh token is left out with its "&"; extra data always stand behind the second "&".
std::string formatTokenText(const OAuth2Tokens& tokens);

/// Reads such a text. False, and the record as it was, when it holds neither an access nor a refresh token.
bool parseTokenText(OAuth2Tokens& tokens, std::string_view text);

} // namespace brindlex
