#include "host/app/core/signin.h"

namespace xbr::host {

SignIn::SignIn(GadgetPanel& panel, const ConfigurationReport& report)
    : m_panel(&panel),
      m_report(&report),
      m_settling([this] { return !m_panel->isClient("isBusy"); }, [this] { look(); }) {}

void SignIn::start(Done done) {
    m_done = std::move(done);
    m_panel->set("connect", 1);
    // After the sign-in the panel asks for the account; an upload that starts before would find it busy.
    m_settling.start();
}

void SignIn::look() {
    if (m_report->wasAsked && !m_report->isComplete()) {
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
