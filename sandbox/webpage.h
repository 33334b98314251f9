#pragma once

#include <string>

namespace sandbox {

// What a server answered: redirects are reported, never followed.
struct WebPage {
    long status = 0;
    std::string location; // byte for byte as sent; empty when there is none
    std::string body;
};

// Gets `url`, or posts `form` (URL-encoded) when it is not empty. Plain http without proxies.
// Throws std::runtime_error when no answer came.
WebPage fetch(const std::string& url, const std::string& form);

} // namespace sandbox
