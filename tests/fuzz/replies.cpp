#include "auth/oauth2tokens.h"
#include "release/account.h"
#include "tests/fuzz/fuzz.h"
#include "tests/fuzz/streams.h"

#include <limits>

namespace {

using brindlex::OAuth2Tokens;

void readTokenReply(std::string_view input) {
    OAuth2Tokens tokens;
    tokens.expiresAt = 7;
    if (!parseTokenReply(tokens, *fuzz::streamOf(input), std::numeric_limits<std::int64_t>::max() / 2)) {
        fuzz::expect(tokens.expiresAt == 7 && tokens.accessToken.empty());
    }
}

/// With a refresh token that no "&" divides, what was read is written as it was.
void readTokenText(std::string_view input) {
    OAuth2Tokens tokens;
    const bool isRead = brindlex::parseTokenText(tokens, input);
    fuzz::expect(isRead != (tokens.accessToken.empty() && tokens.refreshToken.empty()));
    OAuth2Tokens again;
    if (!tokens.refreshToken.empty() && tokens.refreshToken.find('&') == std::string::npos) {
        fuzz::expect(brindlex::parseTokenText(again, brindlex::formatTokenText(tokens)));
        fuzz::expect(again.accessToken == tokens.accessToken && again.refreshToken == tokens.refreshToken &&
                     again.extraData == tokens.extraData);
    }
}

} // namespace

/// What the service answers to signing in, and what is kept of it.
void fuzz::read(std::string_view input) {
    switch (takeChoice(input) % 3) {
    case 0:
        readTokenReply(input);
        break;
    case 1:
        readTokenText(input);
        break;
    default:
        brindlex::parseAccountReply(*streamOf(input));
    }
}
