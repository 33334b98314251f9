#pragma once

#include "host/app/core/configurationstore.h"
#include "host/app/core/gadgetpanel.h"
#include "host/app/core/reachability.h"
#include "host/app/core/settling.h"

#include <cstdint>
#include <functional>
#include <string>

namespace xbr::host {

enum class SignInResult : std::uint8_t {
    kSignedIn,
    kNotConfigured, ///< the configuration report tells what is missing
    kUnreachable,   ///< `detail` tells why
    kNotSignedIn,   ///< refused, failed or given up
};

/// Signs the user in through a panel's command "connect", and finds out what came of it. One-shot.
class SignIn {
public:
    using Done = std::function<void(SignInResult result, const std::string& detail)>;

    SignIn(GadgetPanel& panel, const ConfigurationReport& report);
    SignIn(const SignIn&) = delete;
    SignIn& operator=(const SignIn&) = delete;

    /// Performs the command, which runs the dialog unless stored tokens do, and returns when the dialog is
    /// closed. `done` is called later, once, from the event loop, when the panel has come to rest; it may
    /// destroy this object.
    void start(Done done);

private:
    void look();
    void finish(SignInResult result, const std::string& detail);

    GadgetPanel* m_panel;
    const ConfigurationReport* m_report;
    Done m_done;
    Settling m_settling;
    Reachability m_reachability;
};

} // namespace xbr::host
