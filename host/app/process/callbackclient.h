#pragma once

#include <cstdint>
#include <string>

namespace xbr::host {

enum class Delivery : std::uint8_t {
    kTaken,   ///< a running host took the URL
    kTooLong, ///< longer than a host reads, or not one line
    kNoHost,  ///< no host runs, or none has a module that takes such a URL
};

/// Sends a URL to every running host of this user; those that do not wait for it ignore it. Sockets that dead
/// hosts left are removed. Waits a few seconds at most for each.
Delivery sendToHosts(const std::string& url);

} // namespace xbr::host
