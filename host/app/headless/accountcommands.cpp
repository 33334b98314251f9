#include "host/app/headless/accountcommands.h"

#include "host/app/headless/consolefront.h"
#include "host/app/publishing/signin.h"

#include <QEventLoop>

namespace xbr::host {

namespace {

struct SignInOutcome {
    SignInResult result = SignInResult::kNotSignedIn;
    std::string detail;
};

/// Runs "connect" of the panel until it is over, or the user ends it.
SignInOutcome connect(ConsoleSession& console, Expired expired) {
    HostSession& session = console.session();
    SignInOutcome outcome;
    QEventLoop loop;
    SignIn signIn(console.panel(), session.settings());
    const auto interrupted = session.interruption().subscribe([&loop] { loop.quit(); });
    const auto done = [&](SignInResult result, const std::string& detail) {
        outcome = {result, detail};
        loop.quit();
    };
    signIn.start(done, expired);
    if (!Interruption::isInterrupted()) {
        loop.exec();
    }
    return outcome;
}

ExitCode exitCodeOf(SignInResult result) {
    switch (result) {
    case SignInResult::kSignedIn:
        return ExitCode::kDone;
    case SignInResult::kExpired:
        return ExitCode::kSignInExpired;
    case SignInResult::kNotConfigured:
        return ExitCode::kNotConfigured;
    case SignInResult::kUnreachable:
        return ExitCode::kUnreachable;
    case SignInResult::kNotSignedIn:
        break;
    }
    return ExitCode::kNotSignedIn;
}

void tellProblem(ExitCode code, const std::string& detail, const ConfigurationReport& report) {
    if (code == ExitCode::kNotConfigured) {
        printError(describeProblem(report));
    } else if (code == ExitCode::kSignInExpired) {
        printError(detail + kRenewHint);
    } else if (code == ExitCode::kInterrupted) {
        printError("interrupted");
    } else if (!detail.empty()) {
        printError(detail);
    }
}

/// Connects and tells who is signed in afterwards.
ExitCode connectAndTell(ConsoleSession& console, Expired expired) {
    const SignInOutcome outcome = connect(console, expired);
    const ExitCode code = Interruption::isInterrupted() ? ExitCode::kInterrupted : exitCodeOf(outcome.result);
    if (code == ExitCode::kDone || code == ExitCode::kNotSignedIn || code == ExitCode::kSignInExpired) {
        console.output().account(code == ExitCode::kDone, console.panel().text("userName"));
    }
    console.output().finished(code);
    tellProblem(code, outcome.detail, console.session().settings());
    return code;
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
    console.output().finished(code);
    if (!isDone) {
        printError("the module cannot sign out");
    }
    return code;
}

ExitCode runStatus(const CommandLine& commandLine) {
    // Without a dialog "connect" uses a stored sign-in or gives up; no browser is opened.
    ConsoleSession console(commandLine, Dialogs::kNone);
    const ExitCode started = console.start();
    return started == ExitCode::kDone ? connectAndTell(console, Expired::kTell) : started;
}

} // namespace xbr::host
