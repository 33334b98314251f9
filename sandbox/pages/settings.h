#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace sandbox {

// The one account of the stand-in, and what its sign-in page tells about it. Nothing here is secret.
struct Account {
    std::string user = "mara@example.org";
    std::string password = "night-drive";
    std::string name = "Mara Lindqvist";
    std::int64_t id = 4711;
};

// The one client program that the service knows.
struct ClientRegistration {
    std::string id = "brindlex-demo";
    std::string secret = "brindlex-demo-secret";
    std::string redirectUri = "brindlex://authorize";
};

struct Settings {
    Account account;
    ClientRegistration client;
    std::chrono::seconds tokenLifetime{3600};
};

// The settings with which xbrhost finds a server of this address.
std::string hostSettings(const ClientRegistration& client, const std::string& server);

} // namespace sandbox
