#include "host/app/headless/accountcommands.h"

#include "host/app/headless/consolefront.h"
#include "host/app/publishing/publishing.h"
#include "host/app/publishing/words.h"

#include <QEventLoop>

namespace xbr::host {

namespace {

/// Remembers how it ended.
class SignInView final : public PublishingListener {
public:
    explicit SignInView(QEventLoop& loop) : m_loop(&loop) {}

    void ended(const Verdict& verdict) override {
        m_verdict = verdict;
        m_loop->quit();
    }

    const std::optional<Verdict>& verdict() const { return m_verdict; }

private:
    QEventLoop* m_loop;
    std::optional<Verdict> m_verdict;
};

/// Runs "connect" of the panel until it is over, or the user ends it.
Verdict connect(ConsoleSession& console, Expired expired) {
    HostSession& session = console.session();
    QEventLoop loop;
    SignInView view(loop);
    Publishing publishing(session.activity(), session.settings(), console.panel(), view);
    const auto interrupted = session.interruption().subscribe([&publishing] { publishing.stop(); });
    publishing.signIn(expired);
    if (!view.verdict()) {
        loop.exec();
    }
    return *view.verdict();
}

/// Connects and tells who is signed in afterwards.
ExitCode connectAndTell(ConsoleSession& console, Expired expired) {
    const Verdict verdict = connect(console, expired);
    const bool isAccountKnown =
        verdict.isGood() || verdict.cause == Cause::kNotSignedIn || verdict.cause == Cause::kExpired;
    if (isAccountKnown) {
        console.output().account(verdict.isGood(), console.panel().text("userName"));
    }
    console.output().finished({verdict, {}, {}, 0, 0});
    return verdict.code;
}

} // namespace

ExitCode runSignIn(const CommandLine& commandLine) {
    ConsoleSession console(commandLine, Dialogs::kOffered);
    const ExitCode started = console.start();
    return started == ExitCode::kDone ? connectAndTell(console, Expired::kRenew) : started;
}

ExitCode runSignOut(const CommandLine& commandLine) {
    ConsoleSession console(commandLine, Dialogs::kNone);
    const ExitCode started = console.start();
    if (started != ExitCode::kDone) {
        return started;
    }
    const bool isDone = console.panel().set("Client/resetAuthorization", 1);
    const ExitCode removed = console.hadStoreProblem() ? ExitCode::kNotAllDone : ExitCode::kDone;
    const ExitCode code = isDone ? removed : ExitCode::kModuleProblem;
    if (code == ExitCode::kDone) {
        console.output().account(false, {});
    }
    console.output().ended(code, isDone ? std::string()
                                        : say(QCoreApplication::translate("xbr::host::CommandLine",
                                                                          "The module cannot sign out.")));
    return code;
}

ExitCode runStatus(const CommandLine& commandLine) {
    // Without a dialog "connect" uses a stored sign-in or gives up; no browser is opened.
    ConsoleSession console(commandLine, Dialogs::kNone);
    const ExitCode started = console.start();
    return started == ExitCode::kDone ? connectAndTell(console, Expired::kTell) : started;
}

} // namespace xbr::host
