#pragma once

#include "host/base/problem.h"

#include <curl/curl.h>

#include <string>

namespace xbr::host {

/// Why a transfer was ended by ourselves.
enum class Ended {
    kNot,
    kReplyTooLarge,
    kBodyUnreadable,
    kStalled,
};

/// Tells why no complete answer came. Names the host and nothing else of the request.
Problem failureOf(Ended ended, CURLcode code, const std::string& host);

/// Tells why an answer is no success; no problem when it is one. `said` are the service's own words.
Problem refusalOf(int status, bool hadCredentials, const std::string& host, const std::string& said);

} // namespace xbr::host
