#pragma once

#include <stdexcept>
#include <string>

namespace sandbox {

// Why the visit did not come to the callback. Holds neither codes nor passwords.
class VisitError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// True for an http address of this computer, without user name and password: nothing else is opened, as the
// visitor sends a password.
bool isOfThisComputer(const std::string& url);

// A person with a browser: opens the authorization page, signs in, decides, and ends at the callback. Knows
// the fields of this stand-in's own pages and reads no others.
class Visitor {
public:
    Visitor(std::string user, std::string password, bool allows)
        : m_user(std::move(user)),
          m_password(std::move(password)),
          m_allows(allows) {}

    // The callback URL. Throws VisitError.
    std::string authorize(const std::string& url) const;

private:
    std::string m_user;
    std::string m_password;
    bool m_allows;
};

} // namespace sandbox
