#include "sandbox/pages/grants.h"

#include "sandbox/http/text.h"

#include <algorithm>

namespace sandbox {
namespace {

constexpr std::chrono::minutes kCodeLifetime{10};
constexpr std::size_t kRandomBytes = 32; // not a multiple of three: base64 ends in '='
constexpr std::size_t kMostGrants = 1000;

// No character of a client id or URI.
std::string bind(const std::string& clientId, const std::string& redirectUri) {
    return clientId + '\n' + redirectUri;
}

std::string awkwardText() {
    auto text = randomText(kRandomBytes);
    while (text.find('+') == std::string::npos || text.find('/') == std::string::npos) {
        text = randomText(kRandomBytes);
    }
    return text;
}

} // namespace

Grants::Grants(std::chrono::seconds tokenLifetime, Now now)
    : m_tokenLifetime(tokenLifetime),
      m_now(std::move(now)) {}

// Drops what has run out, and when somebody keeps asking for more, what would run out next.
void Grants::add(Store& store, const std::string& key, Grant grant) const {
    std::erase_if(store, [&](const auto& entry) { return entry.second.ends <= m_now(); });
    if (store.size() >= kMostGrants) {
        store.erase(std::min_element(store.begin(), store.end(), [](const auto& a, const auto& b) {
            return a.second.ends < b.second.ends;
        }));
    }
    store.emplace(key, std::move(grant));
}

bool Grants::take(Store& store, const std::string& key, const std::string& boundTo) const {
    const auto found = store.find(key);
    if (found == store.end()) {
        return false;
    }
    const auto grant = found->second;
    store.erase(found);
    return grant.boundTo == boundTo && m_now() < grant.ends;
}

std::string Grants::issueTicket() {
    const std::lock_guard lock(m_mutex);
    auto ticket = randomText(kRandomBytes);
    add(m_tickets, ticket, {.boundTo = {}, .ends = m_now() + kCodeLifetime});
    return ticket;
}

bool Grants::redeemTicket(const std::string& ticket) {
    const std::lock_guard lock(m_mutex);
    return take(m_tickets, ticket, {});
}

std::string Grants::issueCode(const std::string& clientId, const std::string& redirectUri) {
    const std::lock_guard lock(m_mutex);
    auto code = awkwardText();
    add(m_codes, code, {.boundTo = bind(clientId, redirectUri), .ends = m_now() + kCodeLifetime});
    return code;
}

bool Grants::redeemCode(const std::string& code, const std::string& clientId,
                        const std::string& redirectUri) {
    const std::lock_guard lock(m_mutex);
    return take(m_codes, code, bind(clientId, redirectUri));
}

std::string Grants::issueAccessToken() {
    const std::lock_guard lock(m_mutex);
    auto token = randomText(kRandomBytes);
    add(m_tokens, token, {.boundTo = {}, .ends = m_now() + m_tokenLifetime});
    return token;
}

bool Grants::accepts(const std::string& accessToken) const {
    const std::lock_guard lock(m_mutex);
    const auto found = m_tokens.find(accessToken);
    return found != m_tokens.end() && m_now() < found->second.ends;
}

Grants::Counts Grants::counts() const {
    const std::lock_guard lock(m_mutex);
    return {.codes = m_codes.size(), .tokens = m_tokens.size()};
}

} // namespace sandbox
