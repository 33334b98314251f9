#include "auth/authorizationgrant.h"

#include <algorithm>

namespace brindlex {

xbr::Url authorizationUrl(const ServiceConfiguration& configuration, JoinToken joinToken) {
    xbr::Url url = configuration.serverUrl;
    url.appendPath("oauth/authorize");
    url.addQueryParameter("client_id", configuration.consumerKey);
    url.addQueryParameter("redirect_uri", configuration.callbackUrl.toString());
    url.addQueryParameter("response_type", "code");
    if (joinToken == JoinToken::kSend) {
        url.addQueryParameter("jt", configuration.joinToken);
    }
    return url;
}

Redirect readRedirect(const xbr::Url& url) {
    std::string code = url.queryParameter("code");
    code.erase(std::min(code.find('#'), code.size()));
    return {std::move(code), url.queryParameter("error_description")};
}

xbr::Pairs tokenForm(const ServiceConfiguration& configuration, std::string_view code) {
    return {{"client_id", configuration.consumerKey},
            {"client_secret", configuration.consumerSecret},
            {"redirect_uri", configuration.callbackUrl.toString()},
            {"grant_type", "authorization_code"},
            {"code", std::string(code)}};
}

} // namespace brindlex
