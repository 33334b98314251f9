#pragma once

#include "sandbox/http/server.h"
#include "sandbox/service.h"

#include <httplib.h>

#include <filesystem>
#include <map>
#include <string>
#include <thread>

// A service on a free port with a folder of its own; gone at the end of the test.
class RunningService {
public:
    RunningService();
    ~RunningService();
    RunningService(const RunningService&) = delete;
    RunningService& operator=(const RunningService&) = delete;

    std::string origin() const { return "http://127.0.0.1:" + std::to_string(m_port); }
    std::string authorizeUrl() const;
    int port() const { return m_port; }
    httplib::Client& client() { return m_client; }
    const std::filesystem::path& folder() const { return m_folder; }
    std::filesystem::path inbox() const { return m_folder / "inbox"; }

    // Goes through the pages as the sample account and exchanges the code.
    std::string signIn();
    httplib::Result exchange(const std::string& code);
    // Hands in an archive, packed as a proper multipart body.
    httplib::Result upload(const std::string& token, const std::string& archive);
    void addFault(const std::string& json);

private:
    static std::filesystem::path makeFolder();

    std::filesystem::path m_folder = makeFolder();
    sandbox::Service m_service{{}, m_folder / "inbox", m_folder / "log"};
    sandbox::Server m_server{[this](sandbox::Exchange& exchange) { return m_service.handle(exchange); }};
    int m_port = m_server.open(0);
    httplib::Client m_client{"127.0.0.1", m_port};
    std::thread m_thread{[this] { m_server.run(); }};
};

using Entries = std::map<std::string, std::string>;

// A ZIP archive in memory.
std::string zipOf(const Entries& entries);
// The document for one song whose audio is in `audioFile`.
std::string metadataFor(const std::string& audioFile);
// The URL-encoded value of a query field.
std::string queryValue(const std::string& url, const std::string& name);
