#pragma once

#include "framework/abi/progress.h"
#include "host/net/hostnet.h"
#include "host/security/hostsecurity.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace xbr::host {

/// What runs at the moment, and who is told when it ends: dialogs and indicators that run the event loop
/// inside a call of a module, requests, and questions to the keyring. While there is any of the former, code
/// of the module is on the stack: it may not be unloaded. One object per process. Main thread.
class Activity final : private ExchangeListener, private StoreListener {
public:
    enum class Kind : std::uint8_t {
        kDialog,
        kPreparing, ///< a progress indicator
        kRendering, ///< work of the host's own; an indicator that is shown meanwhile belongs to it
        kKeyring,   ///< the keyring is asked, and keeps us waiting
    };

    /// One run of a dialog, an indicator or a piece of work; it is over when this object dies.
    class Run {
    public:
        /// `end` is called, possibly more than once, when the run has to end soon. `progress`, where there is
        /// one, is told of what the host's own libraries do meanwhile.
        Run(Activity& activity, Kind kind, std::function<void()> end, IProgress* progress = nullptr);
        Run(const Run&) = delete;
        Run& operator=(const Run&) = delete;
        ~Run();

        /// The user does not want the work to go on.
        void cancelled() { m_isCancelled = true; }

        /// How far the work is, and what it works on.
        void progressed(double fraction, const std::string& what);

    private:
        Activity* m_activity;
        Kind m_kind;
        bool m_isIndicator;
        bool m_isCancelled = false;
        std::list<std::pair<Kind, std::function<void()>>>::iterator m_entry;
    };

    /// Hears of what runs. All but `becameQuiet` may come from within a call of a module.
    struct Watcher {
        virtual void began(Kind) {}
        virtual void workProgressed(Kind, double /*fraction*/, const std::string& /*what*/) {}
        virtual void ended(Kind, bool /*isCancelled*/) {}
        virtual void exchangeBegan(const Exchange&) {}
        virtual void exchangeProgressed(const Exchange&) {}
        virtual void exchangeEnded(const Exchange&) {}
        virtual void fileFailed(const Problem&) {}
        virtual void storeAnswered(StoreOperation, StoreResult) {}

        /// From the event loop: nothing runs any more, and all that was posted is delivered.
        virtual void becameQuiet() {}

    protected:
        ~Watcher() = default;
    };

    Activity();
    Activity(const Activity&) = delete;
    Activity& operator=(const Activity&) = delete;
    ~Activity();

    /// Tells `watcher` until the handle dies.
    using Handle = std::shared_ptr<void>;
    [[nodiscard]] Handle watch(Watcher& watcher);

    bool isOpen(Kind kind) const;

    /// True while a progress indicator is shown.
    bool isWorking() const { return isOpen(Kind::kPreparing) || isOpen(Kind::kRendering); }

    /// True when no dialog, indicator or work is open.
    bool isEmpty() const { return m_runs.empty(); }

    /// True when nothing runs, no request is on its way and nothing is posted.
    bool isQuiet() const;

    /// Has `becameQuiet` told in a later turn of the event loop, or when it comes to that.
    void askForQuiet();

    /// Names who keeps the event loop going while a module waits for the keyring: called again and again, for
    /// a moment each. Nothing of a module is called in there: messages, requests and callback URLs wait.
    struct KeyringWaiter {
        /// `isForUser`: the desktop asks for the password. False gives it up.
        virtual bool keyringWaits(bool isForUser) = 0;
        virtual void keyringAnswered() = 0;

    protected:
        ~KeyringWaiter() = default;
    };
    void setKeyringWaiter(KeyringWaiter* waiter) { m_waiter = waiter; }

    /// How the keyring answered the last question for something stored.
    StoreResult lastFound() const { return m_lastFound; }

    /// Whether modules get dialogs; without, one that would ask the user gives up at once.
    void allowDialogs(bool areAllowed) { m_areDialogsAllowed = areAllowed; }
    bool areDialogsAllowed() const { return m_areDialogsAllowed; }

    /// Asks the runs of a kind, or of all, to end, the newest first.
    void end(std::optional<Kind> kind);

    /// Asks all runs to end, the newest first. Later ones are not to begin: see `isEnding`.
    void endAll();

    /// True once the program is about to end.
    bool isEnding() const { return m_isEnding; }

private:
    void began(const Exchange& exchange) override;
    void progressed(const Exchange& exchange) override;
    void ended(const Exchange& exchange) override;
    bool storeWaits(bool isForUser) override;
    void storeAnswered(StoreOperation operation, StoreResult result) override;
    void look();
    template <class Tell>
    void tell(const Tell& tellOne);

    std::list<std::pair<Kind, std::function<void()>>> m_runs;
    std::vector<Watcher*> m_watchers;
    int m_exchanges = 0;          ///< on their way
    std::optional<Run> m_keyring; ///< while it keeps us waiting
    KeyringWaiter* m_waiter = nullptr;
    StoreResult m_lastFound = StoreResult::kNothing;
    bool m_isKeyringGivenUp = false;
    bool m_areDialogsAllowed = true;
    bool m_isEnding = false;
    bool m_isLookDue = false;
    QObject m_loop; ///< receives the turns of the event loop
};

} // namespace xbr::host
