#pragma once

#include "framework/support/objects/object.h"
#include "host/app/modules/loadedmodule.h"
#include "host/app/process/singleinstance.h"
#include "host/app/process/temporarytenancy.h"
#include "host/app/session/coreclasses.h"
#include "host/app/session/hostcontext.h"
#include "host/app/window/dialogs/windowcontext.h"
#include "host/app/window/frame/mainwindow.h"
#include "host/app/window/start/windowclasses.h"
#include "host/app/window/start/windowoptions.h"

#include <memory>
#include <string>
#include <vector>

namespace xbr::host {

/// A running host with a window: the host's classes, the modules, and the window. Its end takes everything
/// down in the reverse order; nothing of a module may be on the stack then.
class WindowHost {
public:
    WindowHost();
    WindowHost(const WindowHost&) = delete;
    WindowHost& operator=(const WindowHost&) = delete;
    ~WindowHost();

    /// Loads the modules and shows the window, whatever comes of it. The window tells of modules that cannot
    /// be loaded, and lists songs nonetheless.
    void start(const WindowOptions& options);

    MainWindow& window() { return *m_window; }
    WindowContext& context() { return m_context; }

private:
    void loadModules(const std::string& wanted);
    void listen();
    void callbackArrived();

    WindowContext m_context;
    TemporaryTenancy m_tenancy;
    CoreClasses m_coreClasses;
    WindowClasses m_windowClasses;
    Ref<HostContext> m_hostContext;
    std::vector<std::unique_ptr<LoadedModule>> m_modules;
    std::vector<std::string> m_problems; ///< why modules could not be loaded
    std::unique_ptr<MainWindow> m_window;
    Ref<OpenHandler> m_opening;
    Interruption::Handle m_interrupted;
};

} // namespace xbr::host
