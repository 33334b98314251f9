#include "auth/oauth2tokens.h"

#include "framework/support/data/attributes.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/text.h"

#include <limits>

namespace brindlex {

namespace {

std::int64_t addSaturated(std::int64_t left, std::int64_t right) {
    std::int64_t sum = 0;
    return __builtin_add_overflow(left, right, &sum) ? std::numeric_limits<std::int64_t>::max() : sum;
}

} // namespace

bool parseTokenReply(OAuth2Tokens& tokens, xbr::IStream& body, std::int64_t now) {
    const auto reply = xbr::rewind(body) ? xbr::readJson(body) : nullptr;
    if (!reply) {
        return false;
    }
    tokens.refreshToken = reply->getString("refresh_token");
    tokens.idToken = reply->getString("id_token");
    tokens.accessToken = reply->getString("access_token");
    const xbr::Value expiresIn = reply->get("expires_in");
    if (expiresIn.kind != xbr::ValueKind::kNone) {
        tokens.expiresAt = addSaturated(xbr::integerOf(expiresIn), now);
    }
    tokens.extraData.clear();
    return true;
}

std::string formatTokenText(const OAuth2Tokens& tokens) {
    std::string text = tokens.accessToken;
    if (!tokens.refreshToken.empty()) {
        text += '&' + tokens.refreshToken;
    }
    if (!tokens.extraData.empty()) {
        if (text.find('&') == std::string::npos) {
            text += '&';
        }
        text += '&' + tokens.extraData;
    }
    return text;
}

bool parseTokenText(OAuth2Tokens& tokens, std::string_view text) {
    const auto first = text.find('&');
    const auto last = text.rfind('&');
    const auto access = text.substr(0, first);
    // Without any "&" the whole text is both tokens: credentials written by a version that kept only one
    // token read that way, and users rely on staying signed in with them. (npos + 1 is 0, the start of the
    // text.)
    const auto refresh = last == first ? text.substr(first + 1) : text.substr(first + 1, last - first - 1);
    const auto extra = last == first ? std::string_view() : text.substr(last + 1);
    if (access.empty() && refresh.empty()) {
        return false;
    }
    tokens.accessToken = access;
    tokens.refreshToken = refresh;
    tokens.extraData = xbr::toAscii(extra);
    return true;
}

} // namespace brindlex
