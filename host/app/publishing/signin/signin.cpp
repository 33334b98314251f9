#include "host/app/publishing/signin/signin.h"

#include "host/system/hostsystem.h"

#include <cassert>
#include <utility>

namespace xbr::host {

SignIn::SignIn(GadgetPanel& panel, Activity& activity, const ConfigurationReport& report)
    : m_panel(&panel),
      m_activity(&activity),
      m_report(&report),
      m_watching(activity.watch(*this)) {
    m_later.setSingleShot(true);
    m_later.setInterval(0);
    m_later.callOnTimeout([this] { look(); });
}

void SignIn::setPhase(Phase phase) {
    assert(phase == Phase::kIdle || m_phase != Phase::kForgetting || phase == Phase::kConnecting);
    m_phase = phase;
}

void SignIn::start(Done done, Expired expired) {
    m_done = std::move(done);
    m_expired = expired;
    connect();
}

void SignIn::follow(Done done) {
    if (m_phase == Phase::kIdle) {
        m_done = std::move(done);
        m_expired = Expired::kTell;
        m_facts = {};
        m_facts.wasUserAsked = true;
        setPhase(Phase::kConnecting);
        lookLater();
    }
}

void SignIn::connect() {
    m_facts = {};
    setPhase(Phase::kConnecting);
    m_panel->set("connect", 1);
    // After the sign-in the panel asks for the account; an upload that starts before would find it busy.
    lookLater();
}

std::optional<StoreResult> SignIn::forget() {
    std::optional<StoreResult> result;
    followRemoval([&result](StoreResult removed) { result = removed; });
    m_panel->set("Client/resetAuthorization", 1);
    m_removed = {};
    return result;
}

void SignIn::began(Activity::Kind kind) {
    m_facts.wasUserAsked = m_facts.wasUserAsked || kind == Activity::Kind::kDialog;
}

void SignIn::storeAnswered(StoreOperation operation, StoreResult result) {
    switch (operation) {
    case StoreOperation::kFind:
        m_facts.found = result;
        m_mayBeKept = true;
        break;
    case StoreOperation::kAdd:
        m_facts.kept = result;
        m_mayBeKept = result != StoreResult::kNoStore;
        break;
    case StoreOperation::kRemove:
        if (const auto removed = std::exchange(m_removed, {})) {
            removed(result);
        }
        break;
    }
}

void SignIn::ended(Activity::Kind, bool) {
    lookLater();
}

void SignIn::exchangeEnded(const Exchange& exchange) {
    // Without credentials and a body it is a question whether the service is there at all: every answer does.
    const bool isSignIn = exchange.hadCredentials || exchange.hadBody;
    const bool isGivenUp = exchange.problem.fault == Fault::kCancelled;
    if (!isGivenUp && (exchange.status == 0 || isSignIn)) {
        m_facts.problem = exchange.problem;
        m_facts.isAnswerUnusable = !exchange.hadCredentials && !exchange.problem;
    }
    lookLater();
}

void SignIn::lookLater() {
    if (m_phase != Phase::kIdle) {
        m_later.start();
    }
}

bool SignIn::isAtRest() const {
    return !m_activity->isOpen(Activity::Kind::kDialog) && !m_activity->isOpen(Activity::Kind::kKeyring) &&
           !hasPostedMessages() && !m_panel->isClient("isBusy");
}

/// The panel asked for the account with the tokens that it has, and was refused.
bool SignIn::isExpired() const {
    return m_panel->isClient("isAuthorized") && m_facts.problem.fault == Fault::kSignInRefused;
}

void SignIn::look() {
    if (m_phase == Phase::kIdle || !isAtRest()) {
        return;
    }
    if (m_phase == Phase::kForgetting) {
        connect();
    } else if (isExpired() && m_expired == Expired::kRenew) {
        m_expired = Expired::kTell; // once: new tokens that are refused, too, are told of
        setPhase(Phase::kForgetting);
        m_panel->set("Client/resetAuthorization", 1);
        // The panel posts that to itself, and would take it for the end of the next sign-in.
        lookLater();
    } else {
        finish();
    }
}

void SignIn::finish() {
    setPhase(Phase::kIdle);
    SignInFacts facts = std::exchange(m_facts, {});
    facts.isAuthorized = m_panel->isClient("isAuthorized");
    facts.account = m_panel->text("userName");
    facts.settings = *m_report;
    const Done done = std::exchange(m_done, {});
    done(facts);
}

} // namespace xbr::host
