#pragma once

#include "sandbox/pages/settings.h"

#include <string>
#include <utility>
#include <vector>

// The pages a person sees: plain HTML forms without scripts. Everything that comes from outside is escaped.
namespace sandbox {

using HiddenFields = std::vector<std::pair<std::string, std::string>>;

// Asks for user name and password; `message` (may be empty) says what went wrong before.
std::string signInPage(const Account& account, const HiddenFields& hidden, const std::string& user,
                       const std::string& message);
// Asks the signed-in person to allow or deny.
std::string consentPage(const Account& account, const HiddenFields& hidden);
// Shown with the redirect, for systems on which no program takes the callback.
std::string returnPage(const std::string& callback);
std::string errorPage(const std::string& message);
std::string indexPage();
// A page that a news entry links to.
std::string articlePage(const std::string& title, const std::string& text);

} // namespace sandbox
