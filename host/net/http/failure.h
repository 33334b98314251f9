#pragma once

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

/// Tells in plain words why no complete answer came. Names the host and nothing else of the request.
std::string failureText(Ended ended, CURLcode code, const std::string& host);

} // namespace xbr::host
