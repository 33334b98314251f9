#pragma once

#include "sandbox/htmlform.h"
#include "sandbox/webpage.h"

#include <stdexcept>
#include <string>

namespace sandbox {

// An address on this computer: http, a loopback host.
struct LocalUrl {
    std::string origin; // http://host:port
    std::string target; // path and query, without the fragment

    // Throws VisitError for anything else.
    static LocalUrl parse(const std::string& url);
};

// Why the visit did not come to the callback. Holds neither codes nor passwords.
class VisitError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// A person with a browser: opens the authorization page, signs in, decides, and ends at the callback.
class Visitor {
public:
    Visitor(std::string user, std::string password, bool allows)
        : m_user(std::move(user)),
          m_password(std::move(password)),
          m_allows(allows) {}

    // The callback URL. Throws VisitError or, when a page does not come, std::runtime_error.
    std::string authorize(const std::string& url);

private:
    // Where a page leads: another local page, or the callback.
    bool step(const WebPage& page, std::string& callback);
    void follow(const std::string& location, std::string& callback);
    void submit(const HtmlForm& form);
    std::string fill(const HtmlForm& form) const;
    std::string valueFor(const HtmlForm::Control& control) const;

    std::string m_user;
    std::string m_password;
    bool m_allows;
    bool m_signedIn = false;
    LocalUrl m_next;
    std::string m_body; // of the next request; empty: GET
};

} // namespace sandbox
