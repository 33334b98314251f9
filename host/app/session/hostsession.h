#pragma once

#include "host/app/modules/gadgetpanel.h"
#include "host/app/modules/loadedmodule.h"
#include "host/app/process/callbackserver.h"
#include "host/app/process/interruption.h"
#include "host/app/process/temporarytenancy.h"
#include "host/app/session/activity.h"
#include "host/app/session/frontend.h"
#include "host/app/session/hostclasses.h"
#include "host/base/problem.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace xbr::host {

struct SessionOptions {
    std::string module;           ///< path; empty for the usual ones
    bool isForAllModules = false; ///< of the usual ones; otherwise for the first
    bool takesCallbacks = false;  ///< the browser may come back
};

/// A running host, whatever its front end is: the classes for modules, the modules and their panels. Its end
/// takes everything down in the reverse order; nothing of a module may be on the stack then. One object per
/// process. Main thread.
class HostSession final : private CallbackServer::Host {
public:
    HostSession(FrontEnd& front, SessionOptions options);
    HostSession(const HostSession&) = delete;
    HostSession& operator=(const HostSession&) = delete;
    ~HostSession();

    /// Loads the modules, and listens for callbacks. What did not come about is told; the session lives on
    /// with the rest. Once.
    std::vector<Problem> start();

    /// Makes the panel of a gadget. `show` is called when a module wants the panel to be seen.
    Outcome<GadgetPanel*> openPanel(const GadgetClass& gadget, std::function<void()> show);

    /// Takes the panels down; whatever shows one has to be gone.
    void closePanels();

    /// Those that could be loaded.
    const std::vector<std::unique_ptr<LoadedModule>>& modules() const { return m_modules; }

    /// True while a panel waits for the browser to come back.
    bool isBrowserAwaited() const;

    /// Takes a link with which a browser comes back, as if it had come by itself.
    void takeLinkBack(const std::string& link) { m_callbacks.openUrl(link); }

    Activity& activity() { return m_activity; }
    Interruption& interruption() { return m_interruption; }
    const ConfigurationReport& settings() const { return *m_settings; }

private:
    std::optional<std::int64_t> waitsForBrowserSince() override;
    bool isHeld() override { return m_activity.isOpen(Activity::Kind::kKeyring); }
    void urlCame() override;

    enum class State : std::uint8_t { kNew, kRunning, kClosing };
    void setState(State state);
    std::vector<std::string> modulesToLoad() const;

    FrontEnd& m_front;
    SessionOptions m_options;
    State m_state = State::kNew;
    TemporaryTenancy m_tenancy;
    Interruption m_interruption;
    Activity m_activity;
    std::shared_ptr<ConfigurationReport> m_settings;
    HostClasses m_classes;
    std::int64_t m_browserOpened = 0; ///< on the clock that all processes share
    CallbackServer m_callbacks{*this};
    Ref<IHostContext> m_context;
    std::vector<std::unique_ptr<LoadedModule>> m_modules;
    std::vector<std::unique_ptr<GadgetPanel>> m_panels;
    Interruption::Handle m_interrupted;
};

} // namespace xbr::host
