#include "host/app/publishing/signin.h"

#include "host/net/hostnet.h"

#include <utility>

namespace xbr::host {

SignIn::SignIn(GadgetPanel& panel, const ConfigurationReport& report)
    : m_panel(&panel),
      m_report(&report),
      m_settling([this] { return !m_panel->isClient("isBusy"); }, [this] { look(); }) {}

void SignIn::start(Done done, Expired expired) {
    m_done = std::move(done);
    m_expired = expired;
    connect();
}

void SignIn::connect() {
    m_refusals = countRefusedCredentials();
    m_panel->set("connect", 1);
    // After the sign-in the panel asks for the account; an upload that starts before would find it busy.
    m_settling.start();
}

/// The panel asked for the account with the tokens that it has, and was refused.
bool SignIn::isExpired() const {
    return m_panel->isClient("isAuthorized") && countRefusedCredentials() != m_refusals;
}

void SignIn::forget() {
    m_expired = Expired::kTell; // once: new tokens that are refused, too, are told of
    m_isForgotten = true;
    m_panel->set("Client/resetAuthorization", 1);
    // The panel posts that to itself, and would take it for the end of the next sign-in.
    m_settling.start();
}

void SignIn::look() {
    if (isExpired() && m_expired == Expired::kRenew) {
        forget();
    } else if (std::exchange(m_isForgotten, false)) {
        connect();
    } else if (isExpired()) {
        finish(SignInResult::kExpired, kExpiredAdvice);
    } else if (m_report->wasAsked && !m_report->isComplete()) {
        finish(SignInResult::kNotConfigured, {});
    } else if (m_panel->isClient("isAuthorized")) {
        finish(SignInResult::kSignedIn, {});
    } else if (m_report->serverUrl.empty()) {
        finish(SignInResult::kNotSignedIn, {});
    } else {
        m_reachability.check(m_report->serverUrl, [this](const std::string& problem) {
            finish(problem.empty() ? SignInResult::kNotSignedIn : SignInResult::kUnreachable, problem);
        });
    }
}

void SignIn::finish(SignInResult result, const std::string& detail) {
    const Done done = std::move(m_done);
    done(result, detail);
}

} // namespace xbr::host
