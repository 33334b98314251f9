#pragma once

#include "sandbox/http/exchange.h"
#include "sandbox/http/form.h"
#include "sandbox/pages/grants.h"
#include "sandbox/pages/settings.h"

#include <string>

namespace sandbox {

// The authorization-code grant: the pages in the browser and the exchange of the code for tokens.
class Authorization {
public:
    Authorization(const Settings& settings, Grants& grants) : m_settings(settings), m_grants(grants) {}

    Reply showSignIn(Exchange& exchange);
    Reply takeSignIn(Exchange& exchange);
    Reply exchangeCode(Exchange& exchange);

    // True when the request carries an access token that is good now.
    bool isAuthorized(const RequestHead& head) const;

private:
    std::string requestFault(const Form& request) const;
    Reply decide(const Form& form);
    Reply checkPassword(const Form& form);
    Reply redirect(const std::string& query) const;
    Reply tokenReply();

    const Settings& m_settings;
    Grants& m_grants;
};

} // namespace sandbox
