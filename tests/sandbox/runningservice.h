#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace httplib {
class Client;
} // namespace httplib

// A service on a free port with a folder of its own; gone at the end of the test.
class RunningService {
public:
    RunningService();
    ~RunningService();
    RunningService(const RunningService&) = delete;
    RunningService& operator=(const RunningService&) = delete;

    std::string origin() const;
    // The settings with which xbrhost finds it.
    std::string settings() const;
    std::string authorizeUrl() const;
    httplib::Client& client();
    const std::filesystem::path& folder() const { return m_folder; }
    std::filesystem::path inbox() const { return m_folder / "inbox"; }

    void addFault(const std::string& json);
    void clearFaults();
    // The requests so far, as a JSON list.
    std::string log();
    void clearLog();

private:
    struct Parts;

    std::filesystem::path m_folder;
    std::unique_ptr<Parts> m_parts;
};
