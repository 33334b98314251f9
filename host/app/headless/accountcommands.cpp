#include "host/app/headless/accountcommands.h"

#include "host/app/headless/headlesshost.h"
#include "host/app/publishing/signin.h"

#include <QEventLoop>

namespace xbr::host {

namespace {

struct SignInOutcome {
    SignInResult result = SignInResult::kNotSignedIn;
    std::string detail;
};

/// Runs "connect" of the panel until it is over, or the user ends it.
SignInOutcome connect(HeadlessHost& host, Expired expired) {
    ConsoleContext& context = host.context();
    SignInOutcome outcome;
    QEventLoop loop;
    SignIn signIn(host.panel(), *context.configuration);
    const auto interrupted = context.interruption.subscribe([&loop] { loop.quit(); });
    const auto done = [&](SignInResult result, const std::string& detail) {
        outcome = {result, detail};
        loop.quit();
    };
    signIn.start(done, expired);
    if (!context.interruption.isInterrupted()) {
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
ExitCode connectAndTell(HeadlessHost& host, Expired expired) {
    const SignInOutcome outcome = connect(host, expired);
    ConsoleContext& context = host.context();
    const ExitCode code =
        context.interruption.isInterrupted() ? ExitCode::kInterrupted : exitCodeOf(outcome.result);
    if (code == ExitCode::kDone || code == ExitCode::kNotSignedIn || code == ExitCode::kSignInExpired) {
        context.output->account(code == ExitCode::kDone, host.panel().text("userName"));
    }
    context.output->finished(code);
    tellProblem(code, outcome.detail, *context.configuration);
    return code;
}

ExitCode start(HeadlessHost& host) {
    std::string error;
    if (host.start(error)) {
        return ExitCode::kDone;
    }
    host.context().output->finished(ExitCode::kModuleProblem);
    printError(error);
    return ExitCode::kModuleProblem;
}

} // namespace

ExitCode runSignIn(const CommandLine& commandLine) {
    HeadlessHost host(commandLine, Dialogs::kOffered);
    const ExitCode started = start(host);
    if (started != ExitCode::kDone) {
        return started;
    }
    host.listenForCallbacks();
    return connectAndTell(host, Expired::kRenew);
}

ExitCode runSignOut(const CommandLine& commandLine) {
    HeadlessHost host(commandLine, Dialogs::kNone);
    const ExitCode started = start(host);
    if (started != ExitCode::kDone) {
        return started;
    }
    const bool isDone = host.panel().set("Client/resetAuthorization", 1);
    const ExitCode removed = host.context().hadStoreProblem ? ExitCode::kNotAllDone : ExitCode::kDone;
    const ExitCode code = isDone ? removed : ExitCode::kModuleProblem;
    if (code == ExitCode::kDone) {
        host.context().output->account(false, {});
    }
    host.context().output->finished(code);
    if (!isDone) {
        printError("the module cannot sign out");
    }
    return code;
}

ExitCode runStatus(const CommandLine& commandLine) {
    // Without a dialog "connect" uses a stored sign-in or gives up; no browser is opened.
    HeadlessHost host(commandLine, Dialogs::kNone);
    const ExitCode started = start(host);
    return started == ExitCode::kDone ? connectAndTell(host, Expired::kTell) : started;
}

} // namespace xbr::host
