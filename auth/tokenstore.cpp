#include "auth/tokenstore.h"

#include "framework/abi/credentials.h"
#include "framework/support/objects/text.h"

namespace brindlex {

namespace {

// Marks the credential's format: the password is a token text.
constexpr std::string_view kUserName = "OAuth2Tokens";

} // namespace

bool storeTokens(const OAuth2Tokens& tokens, std::string_view credentialName) {
    const std::string text = formatTokenText(tokens);
    return XBRGetCredentialManager()->add(xbr::toText(credentialName), xbr::toText(kUserName),
                                          xbr::toText(text), xbr::toText("")) == xbr::kOk;
}

bool loadTokens(OAuth2Tokens& tokens, std::string_view credentialName) {
    xbr::Ref<xbr::ICredential> credential;
    if (XBRGetCredentialManager()->find(xbr::toText(credentialName), credential.out()) != xbr::kOk) {
        return false;
    }
    return xbr::view(credential->userName()) == kUserName &&
           parseTokenText(tokens, xbr::view(credential->password()));
}

void removeTokens(std::string_view credentialName) {
    XBRGetCredentialManager()->remove(xbr::toText(credentialName));
}

} // namespace brindlex
