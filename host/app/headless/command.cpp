#include "host/app/headless/command.h"

#include "host/app/headless/accountcommands.h"
#include "host/app/headless/genrescommand.h"
#include "host/app/headless/output/output.h"
#include "host/app/headless/publishcommand.h"
#include "host/app/modules/loadedmodule.h"
#include "host/app/process/callbackclient.h"
#include "host/app/publishing/verdict/words.h"
#include "host/app/texts/programtexts.h"
#include "host/base/textscan.h"

#include <QCoreApplication>
#include <QFile>

#include <iostream>

namespace xbr::host {

namespace {

ExitCode openUrl(const CommandLine& commandLine) {
    ExitCode code = ExitCode::kDone;
    std::string wrong;
    switch (sendLinkBack(commandLine.words.front())) {
    case Delivery::kTaken:
        break;
    case Delivery::kTooLong:
        code = ExitCode::kUsage;
        wrong = say(CommandLine::tr("The link is too long, or not one line."));
        break;
    case Delivery::kNoHost:
        code = ExitCode::kNoHost;
        wrong = say(CommandLine::tr("No running xbrhost waits for this link. Start the sign-in again."));
    }
    makeOutput(commandLine)->ended(code, wrong);
    return code;
}

/// This program's version, and that of each module that can be used.
void printVersions() {
    std::cout << "xbrhost " << XBR_HOST_VERSION << '\n';
    for (const auto& path :
         findModules(QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString())) {
        if (const auto module = LoadedModule::inspect(path)) {
            const std::string version = (*module)->version();
            std::cout << plainText((*module)->name() + (version.empty() ? "" : " " + version)) << '\n';
        }
    }
}

ExitCode run(const CommandLine& commandLine) {
    switch (commandLine.command) {
    case Command::kPublish:
        return runPublish(commandLine);
    case Command::kGenres:
        return runGenres(commandLine);
    case Command::kSignIn:
        return runSignIn(commandLine);
    case Command::kSignOut:
        return runSignOut(commandLine);
    case Command::kStatus:
        return runStatus(commandLine);
    case Command::kOpenUrl:
        return openUrl(commandLine);
    case Command::kVersion:
        printVersions();
        return ExitCode::kDone;
    case Command::kWindow: // the program's, not ours
    case Command::kHelp:
        break;
    }
    std::cout << helpText(commandLine.topic);
    return ExitCode::kDone;
}

} // namespace

ExitCode runCommand(int& argc, char** argv, const std::vector<std::string>& arguments) {
    const QCoreApplication application(argc, argv);
    const ProgramTexts texts;
    const auto commandLine = parseCommandLine(arguments);
    if (!commandLine) {
        printError(commandLine.problem().words + " " + say(CommandLine::tr("xbrhost help tells more.")));
        return ExitCode::kUsage;
    }
    return run(*commandLine);
}

} // namespace xbr::host
