#pragma once

#include "sandbox/http/exchange.h"
#include "sandbox/upload/inbox.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace sandbox {

// A file's bytes, readable in place without a copy in memory.
class MappedFile {
public:
    // Throws std::system_error.
    explicit MappedFile(const std::filesystem::path& file);
    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    // Valid as long as the object.
    std::string_view view() const { return {static_cast<const char*>(m_address), m_size}; }

private:
    void* m_address = nullptr;
    std::size_t m_size = 0;
};

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
