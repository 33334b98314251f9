#pragma once

#include <cstdint>
#include <string>

namespace xbr::host {

enum class Delivery : std::uint8_t {
    kTaken,   ///< a running host took the URL
    kTooLong, ///< longer than a host reads, or not one line
    kNoHost,  ///< no host runs, or none waits for such a URL
};

// Running hosts are asked all at once, and have a second each; those that do not answer are passed over.
// Sockets that dead hosts left are removed.

/// Sends a URL to every running host of this user.
Delivery sendToHosts(const std::string& url);

/// Sends the link with which a browser comes back to the one host that waits for it: of several to that which
/// opened a browser last. A code works once, and whoever came second would lose the sign-in.
Delivery sendLinkBack(const std::string& url);

} // namespace xbr::host
