#pragma once

#include "sandbox/http/exchange.h"

#include <cstdint>
#include <deque>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <string>

namespace sandbox {

// An exchange that remembers a form that passes through, so that the log can tell its fields' names and
// order.
class LoggedExchange : public ForwardingExchange {
public:
    using ForwardingExchange::ForwardingExchange;

    bool readBody(const BodySink& sink) override;
    const std::string& formText() const { return m_formText; }

private:
    std::string m_formText;
};

// What was asked and answered, for tests and for people looking over a program's shoulder.
//
// Holds no secrets: names of headers and of known fields, never their values; no query, no tokens, no bodies.
// May be used from several threads.
class RequestLog {
public:
    // With a file, every entry is also appended to it as one line of JSON. Throws std::runtime_error when the
    // file cannot be written.
    explicit RequestLog(const std::filesystem::path& file);

    void add(const LoggedExchange& exchange, const Reply& reply);
    void clear();
    std::uint64_t count() const;
    // The latest entries as a JSON array.
    std::string toJson() const;

private:
    mutable std::mutex m_mutex;
    std::deque<std::string> m_entries;
    std::uint64_t m_count = 0;
    std::ofstream m_file;
};

} // namespace sandbox
