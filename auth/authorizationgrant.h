#pragma once

#include "auth/serviceconfiguration.h"
#include "framework/support/data/formencoding.h"
#include "framework/support/data/url.h"

#include <string>
#include <string_view>

namespace brindlex {

/// Whether the join token goes with the authorization URL; the host decides.
enum class JoinToken { kSend, kWithhold };

/// The page that the browser opens (authorization code grant, RFC 6749 section 4.1.1): "client_id",
/// "redirect_uri", "response_type", then "jt" when it is sent. Neither "state" nor "scope" nor a PKCE
/// challenge is sent: the service knows this exact query only.
xbr::Url authorizationUrl(const ServiceConfiguration& configuration, JoinToken joinToken);

/// What the browser brought back: a code, or what the service says went wrong.
struct Redirect {
    std::string code; ///< cut at a "#": some browsers glue the fragment to the last parameter
    std::string errorDescription;
};

Redirect readRedirect(const xbr::Url& url);

/// The form that exchanges a code for tokens (RFC 6749 section 4.1.3), in the service's order.
xbr::Pairs tokenForm(const ServiceConfiguration& configuration, std::string_view code);

} // namespace brindlex
