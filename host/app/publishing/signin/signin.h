#pragma once

#include "host/app/modules/gadgetpanel.h"
#include "host/app/publishing/signin/account.h"
#include "host/app/session/activity.h"

#include <QTimer>

#include <cstdint>
#include <functional>
#include <optional>

namespace xbr::host {

/// What to do with a stored sign-in that the service does not accept any more.
enum class Expired : std::uint8_t {
    kTell,  ///< it is the result
    kRenew, ///< forget it, and let the user sign in again
};

/// Signs the user in through a panel's command "connect", and finds out what came of it. One at a time. Main
/// thread.
class SignIn final : private Activity::Watcher {
public:
    using Done = std::function<void(const SignInFacts& facts)>;

    SignIn(GadgetPanel& panel, Activity& activity, const ConfigurationReport& report);
    SignIn(const SignIn&) = delete;
    SignIn& operator=(const SignIn&) = delete;

    /// Performs the command, which runs the dialog unless stored tokens do, and returns when the dialog is
    /// closed. `done` is called later, once, from the event loop, when the panel has come to rest; it may
    /// destroy this object.
    void start(Done done, Expired expired = Expired::kTell);

    /// Finds out in the same way what comes of a sign-in that somebody else began. Does nothing while one is
    /// followed already.
    void follow(Done done);

    bool isBusy() const { return m_phase != Phase::kIdle; }

    /// Signs out; how the keyring answered. None: the panel cannot.
    std::optional<StoreResult> forget();

    /// Is told once how the keyring answers to a sign-out that somebody else begins.
    void followRemoval(std::function<void(StoreResult)> removed) { m_removed = std::move(removed); }

    /// False when what is in force was certainly not stored.
    bool mayBeKept() const { return m_mayBeKept; }

private:
    enum class Phase : std::uint8_t { kIdle, kConnecting, kForgetting };

    void began(Activity::Kind kind) override;
    void ended(Activity::Kind kind, bool isCancelled) override;
    void storeAnswered(StoreOperation operation, StoreResult result) override;
    void exchangeEnded(const Exchange& exchange) override;
    void becameQuiet() override { lookLater(); }

    void setPhase(Phase phase);
    void connect();
    void lookLater();
    void look();
    bool isAtRest() const;
    bool isExpired() const;
    void finish();

    GadgetPanel* m_panel;
    Activity* m_activity;
    const ConfigurationReport* m_report;
    Done m_done;
    Expired m_expired = Expired::kTell;
    Phase m_phase = Phase::kIdle;
    SignInFacts m_facts; ///< as far as they are known
    std::function<void(StoreResult)> m_removed;
    bool m_mayBeKept = true;
    QTimer m_later;
    Activity::Handle m_watching;
};

} // namespace xbr::host
