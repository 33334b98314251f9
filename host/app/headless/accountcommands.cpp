#include "host/app/headless/accountcommands.h"

#include "host/app/headless/consolefront.h"
#include "host/app/publishing/publishing.h"
#include "host/app/publishing/verdict/words.h"

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

/// Asks something of the panel's account, and waits until it is over, or the user ends it.
template <class Ask>
Verdict run(ConsoleSession& console, const Ask& ask) {
    HostSession& session = console.session();
    QEventLoop loop;
    SignInView view(loop);
    Publishing publishing(session.activity(), session.settings(), console.panel(), view);
    const auto interrupted = session.interruption().subscribe([&publishing] { publishing.stop(); });
    ask(publishing);
    if (!view.verdict()) {
        loop.exec();
    }
    return *view.verdict();
}

/// Does something with the account, and tells what came of it and who is signed in afterwards.
template <class Ask>
ExitCode runAndTell(const CommandLine& commandLine, Dialogs dialogs, const Ask& ask) {
    ConsoleSession console(commandLine, dialogs);
    const ExitCode started = console.start();
    if (started != ExitCode::kDone) {
        return started;
    }
    const Verdict verdict = run(console, ask);
    if (verdict.isGood() || verdict.code == ExitCode::kNotSignedIn || verdict.cause == Cause::kExpired) {
        console.output().account(verdict.isGood() && verdict.cause != Cause::kSignedOut,
                                 console.panel().text("userName"));
    }
    console.output().finished({verdict, {}, {}, 0, 0});
    return verdict.code;
}

} // namespace

ExitCode runSignIn(const CommandLine& commandLine) {
    return runAndTell(commandLine, Dialogs::kOffered,
                      [](Publishing& publishing) { publishing.signIn(Expired::kRenew); });
}

ExitCode runSignOut(const CommandLine& commandLine) {
    return runAndTell(commandLine, Dialogs::kNone, [](Publishing& publishing) { publishing.signOut(); });
}

ExitCode runStatus(const CommandLine& commandLine) {
    return runAndTell(commandLine, Dialogs::kNone, [](Publishing& publishing) { publishing.restore(); });
}

} // namespace xbr::host
