#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>

namespace httplib {
class Client;
class Result;
} // namespace httplib

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
    httplib::Client& client();
    const std::filesystem::path& folder() const { return m_folder; }
    std::filesystem::path inbox() const { return m_folder / "inbox"; }

    // Goes through the pages as the sample account and exchanges the code.
    std::string signIn();
    httplib::Result exchange(const std::string& code);
    // Hands in an archive, packed as a proper multipart body.
    httplib::Result upload(const std::string& token, const std::string& archive);
    void addFault(const std::string& json);
    void clearFaults();
    // The requests so far, as a JSON list.
    std::string log();
    void clearLog();

private:
    static std::filesystem::path makeFolder();

    struct Parts;

    std::filesystem::path m_folder = makeFolder();
    std::unique_ptr<Parts> m_parts;
    int m_port;
};

using Entries = std::map<std::string, std::string>;

// A ZIP archive in memory.
std::string zipOf(const Entries& entries);
// The document for one song whose audio is in `audioFile`.
std::string metadataFor(const std::string& audioFile);
// The URL-encoded value of a query field.
std::string queryValue(const std::string& url, const std::string& name);
