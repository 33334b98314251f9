#pragma once

#include "framework/support/objects/object.h"
#include "host/app/headless/commandline.h"
#include "host/app/headless/consoleclasses.h"
#include "host/app/headless/consolecontext.h"
#include "host/app/modules/gadgetpanel.h"
#include "host/app/modules/loadedmodule.h"
#include "host/app/process/temporarytenancy.h"
#include "host/app/session/coreclasses.h"
#include "host/app/session/hostcontext.h"

#include <memory>
#include <string>

namespace xbr::host {

/// A running host without a window: the host's classes, the module and its panel. Its end takes everything
/// down in the reverse order.
class HeadlessHost {
public:
    HeadlessHost(const CommandLine& commandLine, Dialogs dialogs);
    HeadlessHost(const HeadlessHost&) = delete;
    HeadlessHost& operator=(const HeadlessHost&) = delete;
    ~HeadlessHost();

    /// Loads the module and makes its panel. False, with the reason in `error`, when that is not possible.
    bool start(std::string& error);

    ConsoleContext& context() { return m_context; }
    GadgetPanel& panel() { return *m_panel; }

    /// Listens for callbacks of the browser. Without them a sign-in cannot end well, so the user is told when
    /// that fails.
    void listenForCallbacks();

private:
    std::string m_modulePath;
    TemporaryTenancy m_tenancy;
    ConsoleContext m_context;
    CoreClasses m_coreClasses;
    ConsoleClasses m_consoleClasses;
    Ref<HostContext> m_hostContext;
    std::unique_ptr<LoadedModule> m_module;
    std::unique_ptr<GadgetPanel> m_panel;
};

} // namespace xbr::host
