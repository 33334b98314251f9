#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <mutex>
#include <string>

namespace sandbox {

// What the service has promised to whom: sign-ins under way, authorization codes and access tokens.
// Kept in memory only. May be used from several threads.
class Grants {
public:
    using Clock = std::chrono::steady_clock;
    using Now = std::function<Clock::time_point()>;

    explicit Grants(std::chrono::seconds tokenLifetime, Now now = Clock::now);

    // A ticket carries a sign-in from the password page to the consent page; it works once.
    std::string issueTicket();
    bool redeemTicket(const std::string& ticket);

    // A code is good for one exchange by the client and redirect URI that it was made for. A failed try uses
    // it up, too. Every code holds '+', '/' and '=', so that a client that escapes badly is found out each
    // time.
    std::string issueCode(const std::string& clientId, const std::string& redirectUri);
    bool redeemCode(const std::string& code, const std::string& clientId, const std::string& redirectUri);

    std::string issueAccessToken();
    bool accepts(const std::string& accessToken) const;

    struct Counts {
        std::size_t codes = 0;
        std::size_t tokens = 0;
    };
    Counts counts() const;

private:
    struct Grant {
        std::string boundTo;
        Clock::time_point ends;
    };
    using Store = std::map<std::string, Grant>;

    void add(Store& store, const std::string& key, Grant grant) const;
    bool take(Store& store, const std::string& key, const std::string& boundTo) const;

    std::chrono::seconds m_tokenLifetime;
    Now m_now;
    mutable std::mutex m_mutex;
    Store m_tickets;
    Store m_codes;
    Store m_tokens;
};

} // namespace sandbox
