#pragma once

#include "framework/abi/webservice.h"
#include "framework/support/objects/object.h"
#include "host/base/listener.h"

#include <functional>
#include <memory>
#include <string>

namespace xbr::host {

/// Finds out whether a service answers at all. Modules only say that something failed; whether the network,
/// or the service, or the account is to blame makes a difference to the user.
class Reachability {
public:
    /// Hears why the service does not answer, in plain words; empty when it does, with whatever status.
    using Done = std::function<void(const std::string& problem)>;

    Reachability() = default;
    Reachability(const Reachability&) = delete;
    Reachability& operator=(const Reachability&) = delete;
    ~Reachability();

    /// Asks the server of `url`. `done` is called once from the event loop, unless this object dies before;
    /// it may destroy this object.
    void check(const std::string& url, Done done);

private:
    void finish();

    std::string m_server;
    Done m_done;
    std::unique_ptr<Listener> m_listener;
    Ref<IWebRequest> m_request;
};

/// "scheme://host:port" of a URL; the whole text when it is none.
std::string serverOf(const std::string& url);

} // namespace xbr::host
