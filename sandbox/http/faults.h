#pragma once

#include "sandbox/http/exchange.h"

#include <chrono>
#include <cstdint>
#include <list>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sandbox {

// Something that goes wrong on demand, for the next `times` requests of a path.
struct Fault {
    std::string path;
    std::string method; // empty: any
    int times = 1;

    // Instead of the endpoint's own reply, when `replaces` is set.
    bool replaces = false;
    int status = 200;
    std::string body;
    std::string contentType;
    std::vector<HeaderField> headers;

    std::chrono::milliseconds delay{0}; // before anything of the body is read
    bool early = false;                 // the reply goes out without the body being read

    std::chrono::milliseconds stall{0}; // nothing is read for so long once `stallAfter` bytes are in
    std::uint64_t stallAfter = 0;
    std::uint64_t readRate = 0;              // bytes of the body a second; 0: as fast as they come
    std::optional<std::uint64_t> resetAfter; // the connection is reset once so many bytes are in

    std::chrono::milliseconds replyStall{0}; // silence in the middle of the reply's body
    bool truncate = false;                   // the connection ends in the middle of the reply's body
};

// Reads the JSON of a fault. Nothing when it is malformed or has a key that does not exist; `why` says which.
std::optional<Fault> parseFault(std::string_view text, std::string& why);

// The faults waiting for their requests, oldest first. May be used from several threads.
class Faults {
public:
    void add(Fault fault);
    void clear();
    // The fault for a request, counted down.
    std::optional<Fault> take(const RequestHead& head);
    std::vector<Fault> waiting() const;

private:
    mutable std::mutex m_mutex;
    std::list<Fault> m_faults;
};

// Serves the exchange as the fault says; `normal` is the endpoint. The rest of the body is left unread when
// the reply is to be early or the connection was reset.
Reply serveFaulty(const Fault& fault, Exchange& exchange, const Handler& normal);

} // namespace sandbox
