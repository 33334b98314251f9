#pragma once

#include "framework/support/data/url.h"

#include <string>

namespace brindlex {

/// Where the service is and who we are to it. All of it comes from the host at run time.
struct ServiceConfiguration {
    xbr::Url serverUrl;         ///< base of every path of the service
    xbr::Url userUrl;           ///< the account page on the service's web site
    std::string consumerKey;    ///< the OAuth2 client identifier
    std::string consumerSecret; ///< the OAuth2 client secret
    xbr::Url callbackUrl;       ///< where the browser is sent back to; its protocol is "brindlex"
    std::string joinToken;
};

} // namespace brindlex
