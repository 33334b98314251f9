#pragma once

#include "host/app/headless/commandline/commandline.h"
#include "host/app/headless/output/output.h"
#include "host/app/process/exitcodes.h"
#include "host/app/session/hostsession.h"

#include <memory>

namespace xbr::host {

enum class Dialogs : std::uint8_t {
    kOffered,      ///< the browser may come back
    kUnlessStored, ///< the same, unless a sign-in may be stored that the keyring keeps to itself
    kNone,         ///< a module that would ask the user gives up at once
};

class ConsoleDialog;

/// The command line as a front end: progress on the output, and where wanted the dialog that waits for the
/// browser.
class ConsoleFront final : public FrontEnd {
public:
    /// `isAnswered`: there is somebody at a terminal, who may paste a link there.
    ConsoleFront(std::unique_ptr<Output> output, Dialogs dialogs, bool isAnswered);
    ConsoleFront(const ConsoleFront&) = delete;
    ConsoleFront& operator=(const ConsoleFront&) = delete;
    ~ConsoleFront() = default;

    Output& output() { return *m_output; }

    Ref<IObject> makeDialog(HostSession& session) override;
    Ref<IObject> makeProgress(HostSession& session) override;
    bool announceBrowser(std::string_view url) override;
    bool keyringWaits(bool isForUser) override;
    void keyringAnswered() override { m_isKeyringTold = false; }
    void browserFailed(const std::string& url, const std::string& reason) override;
    void callbackCame() override;

    Dialogs dialogs() const { return m_dialogs; }
    bool isAnswered() const { return m_isAnswered; }

    /// The dialog that runs; null for none.
    void setDialog(ConsoleDialog* dialog) { m_dialog = dialog; }

private:
    std::unique_ptr<Output> m_output;
    Dialogs m_dialogs;
    bool m_isAnswered;
    ConsoleDialog* m_dialog = nullptr;
    bool m_isKeyringTold = false;
};

/// A session for one command: one module and its panel.
class ConsoleSession {
public:
    ConsoleSession(const CommandLine& commandLine, Dialogs dialogs);

    /// Loads the module and makes its panel. When that is not possible the user is told, and it is the end.
    ExitCode start();

    HostSession& session() { return m_session; }
    GadgetPanel& panel() { return *m_panel; }
    Output& output() { return m_front.output(); }

private:
    Outcome<GadgetPanel*> openPanel(const std::vector<Problem>& problems);

    ConsoleFront m_front;
    HostSession m_session;
    GadgetPanel* m_panel = nullptr;
};

} // namespace xbr::host
