#pragma once

#include "host/base/problem.h"

#include <cstdint>
#include <string>

namespace xbr::host {

/// One HTTP request of a module, as far as the host program hears of it: nothing secret and no content.
struct Exchange {
    std::string method;
    std::string host;
    bool hadCredentials = false;
    bool hadBody = false;
    std::int64_t size = 0;  ///< bytes of the body
    std::int64_t sent = 0;  ///< bytes of the body that left
    int status = 0;         ///< 0: no answer came
    std::string said;       ///< what an answer that is no success says to people: one line of 200 characters
    std::int64_t wait = -1; ///< seconds that an answer asks to wait; -1 for none
    Problem problem;        ///< why it was no success
};

/// Hears of requests, in the calls of modules and from the event loop. May not send, abort or release
/// requests.
class ExchangeListener {
public:
    /// A request is on its way.
    virtual void began(const Exchange& exchange) = 0;

    /// More of its body left.
    virtual void progressed(const Exchange& /*exchange*/) {}

    /// It has come to its end, and its handler was called: what the module began in there began before.
    virtual void ended(const Exchange& exchange) = 0;

protected:
    ~ExchangeListener() = default;
};

} // namespace xbr::host
