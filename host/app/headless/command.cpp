#include "host/app/headless/command.h"

#include "host/app/headless/accountcommands.h"
#include "host/app/headless/commandline.h"
#include "host/app/headless/output.h"
#include "host/app/headless/publishcommand.h"
#include "host/app/modules/loadedmodule.h"
#include "host/app/modules/modulesearch.h"
#include "host/app/process/callbackclient.h"
#include "host/app/texts/programtexts.h"
#include "host/base/textscan.h"

#include <QCoreApplication>
#include <QFile>

#include <iostream>

namespace xbr::host {

namespace {

ExitCode openUrl(const std::string& url) {
    switch (sendToHosts(url)) {
    case Delivery::kTaken:
        return ExitCode::kDone;
    case Delivery::kTooLong:
        printError("the URL is too long, or not one line");
        return ExitCode::kUsage;
    case Delivery::kNoHost:
        break;
    }
    printError("no running host takes this URL");
    return ExitCode::kNoHost;
}

/// This program's version, and that of each module that can be used.
void printVersions() {
    std::cout << "xbrhost " << XBR_HOST_VERSION << '\n';
    for (const auto& path :
         findModules(QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString())) {
        if (const auto module = LoadedModule::inspect(path)) {
            std::cout << plainText((*module)->name() + " " + (*module)->version()) << '\n';
        }
    }
}

ExitCode run(const CommandLine& commandLine) {
    switch (commandLine.command) {
    case Command::kHelp:
        std::cout << helpText();
        return ExitCode::kDone;
    case Command::kVersion:
        printVersions();
        return ExitCode::kDone;
    case Command::kPublish:
        return runPublish(commandLine);
    case Command::kOpenUrl:
        return openUrl(commandLine.url);
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

ExitCode runCommand(int& argc, char** argv, const std::vector<std::string>& arguments) {
    const QCoreApplication application(argc, argv);
    const ProgramTexts texts;
    CommandLine commandLine;
    std::string error;
    if (!parseCommandLine(arguments, commandLine, error)) {
        printError(error + " (see xbrhost --help)");
        return ExitCode::kUsage;
    }
    return run(commandLine);
}

} // namespace xbr::host
