#pragma once

#include "host/app/modules/gadgetpanel.h"
#include "host/app/publishing/reachability.h"
#include "host/app/publishing/settling.h"
#include "host/app/settings/configurationstore.h"

#include <cstdint>
#include <functional>
#include <string>

namespace xbr::host {

enum class SignInResult : std::uint8_t {
    kSignedIn,
    kExpired,       ///< stored tokens were there, but the service does not accept them any more
    kNotConfigured, ///< the configuration report tells what is missing
    kUnreachable,   ///< `detail` tells why
    kNotSignedIn,   ///< refused, failed or given up
};

/// What to do with a stored sign-in that the service does not accept any more.
enum class Expired : std::uint8_t {
    kTell,  ///< it is the result
    kRenew, ///< forget it, and let the user sign in again
};

/// What to tell the user then: modules do not renew it by themselves.
constexpr char kExpiredAdvice[] = "the sign-in has expired or was withdrawn: a new sign-in is needed";

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
    void start(Done done, Expired expired = Expired::kTell);

private:
    void connect();
    void look();
    void forget();
    bool isExpired() const;
    void finish(SignInResult result, const std::string& detail);

    GadgetPanel* m_panel;
    const ConfigurationReport* m_report;
    Done m_done;
    Expired m_expired = Expired::kTell;
    bool m_isForgotten = false;   ///< an expired sign-in; the next step is a new one
    std::uint64_t m_refusals = 0; ///< of credentials, before the command
    Settling m_settling;
    Reachability m_reachability;
};

} // namespace xbr::host
