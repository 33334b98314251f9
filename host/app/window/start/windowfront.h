#pragma once

#include "host/app/process/singleinstance.h"
#include "host/app/session/hostsession.h"
#include "host/app/window/dialogs/dialogplace.h"
#include "host/app/window/dialogs/keyringsheet.h"
#include "host/app/window/frame/mainwindow.h"
#include "host/app/window/start/windowoptions.h"

#include <memory>

namespace xbr::host {

/// The window as a front end, with its session. Its end takes everything down; nothing of a module may be on
/// the stack then.
class WindowFront final : public FrontEnd {
public:
    explicit WindowFront(WindowOptions options);
    WindowFront(const WindowFront&) = delete;
    WindowFront& operator=(const WindowFront&) = delete;
    ~WindowFront();

    /// Loads the modules and shows the window, whatever comes of it. The window tells of modules that cannot
    /// be loaded, and lists songs nonetheless.
    void start();

    MainWindow& window() { return *m_window; }
    HostSession& session() { return m_session; }

    Ref<IObject> makeDialog(HostSession& session) override;
    Ref<IObject> makeProgress(HostSession& session) override;
    Ref<IObject> makeFileSelector(HostSession& session) override;
    bool keyringWaits(bool isForUser) override;
    void keyringAnswered() override { m_keyring.reset(); }
    bool announceBrowser(std::string_view url) override;
    void browserFailed(const std::string& url, const std::string& reason) override;
    void callbackCame() override;

private:
    void tell(const std::vector<Problem>& problems);

    WindowOptions m_options;
    std::unique_ptr<MainWindow> m_window; ///< null while the session comes and goes
    HostSession m_session;
    DialogPlace m_place;
    Ref<OpenHandler> m_opening;
    std::unique_ptr<KeyringSheet> m_keyring; ///< while it is asked
    Interruption::Handle m_interrupted;
};

} // namespace xbr::host
