#include "host/app/core/callbackclient.h"
#include "host/app/headless/accountcommands.h"
#include "host/app/headless/commandline.h"
#include "host/app/headless/output.h"
#include "host/app/headless/publishcommand.h"

#include <QCoreApplication>

#include <iostream>

namespace {

using namespace xbr::host;

ExitCode openUrl(const std::string& url) {
    switch (handOverUrl(url)) {
    case HandOver::kTaken:
        return ExitCode::kDone;
    case HandOver::kTooLong:
        printError("the URL is too long, or not one line");
        return ExitCode::kUsage;
    case HandOver::kNoHost:
        break;
    }
    printError("no running host takes this URL");
    return ExitCode::kNoHost;
}

ExitCode run(const CommandLine& commandLine) {
    switch (commandLine.command) {
    case Command::kHelp:
        std::cout << helpText();
        return ExitCode::kDone;
    case Command::kVersion:
        std::cout << "xbrhost " << XBR_HOST_VERSION << '\n';
        return ExitCode::kDone;
    case Command::kPublish:
        return runPublish(commandLine);
    case Command::kOpenUrl:
        return openUrl(commandLine.arguments.front());
    case Command::kSignIn:
        return runSignIn(commandLine);
    case Command::kSignOut:
        return runSignOut(commandLine);
    case Command::kStatus:
        break;
    }
    return runStatus(commandLine);
}

} // namespace

int main(int argc, char** argv) {
    // Taken before Qt converts them: names of files are bytes.
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const QCoreApplication application(argc, argv);
    CommandLine commandLine;
    std::string error;
    if (!parseCommandLine(arguments, commandLine, error)) {
        printError(error + " (see xbrhost --help)");
        return static_cast<int>(ExitCode::kUsage);
    }
    return static_cast<int>(run(commandLine));
}
