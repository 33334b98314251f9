#pragma once

#include "sandbox/http/exchange.h"
#include "sandbox/upload/inbox.h"

#include <string>

namespace sandbox {

// Takes in one release: the body goes to disk as it comes, is taken apart there, checked and kept.
class Ingestion {
public:
    Ingestion(Inbox& inbox, std::string clientId) : m_inbox(inbox), m_clientId(std::move(clientId)) {}

    // The caller has checked the authorization.
    Reply handle(Exchange& exchange) const;

private:
    std::int64_t ingest(Exchange& exchange) const;
    std::int64_t unpack(const Staging& staging, const std::string& boundary) const;

    Inbox& m_inbox;
    std::string m_clientId;
};

} // namespace sandbox
