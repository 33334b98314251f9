#include "host/app/headless/output/output.h"

#include "host/app/headless/output/terminal.h"
#include "host/base/textscan.h"

#include <iostream>
#include <unistd.h>

namespace xbr::host {

bool isAnswered(const CommandLine& commandLine) {
    return !commandLine.isJson && !commandLine.isQuiet && isatty(STDIN_FILENO) == 1 &&
           isatty(STDERR_FILENO) == 1;
}

std::unique_ptr<Output> makeOutput(const CommandLine& commandLine) {
    return commandLine.isJson
               ? makeJsonOutput()
               : makeTextOutput(commandLine.isQuiet, commandLine.isVerbose, isAnswered(commandLine));
}

void printError(std::string_view text) {
    std::cerr << "xbrhost: " << forTerminal(plainText(text)) << std::endl;
}

std::string sentenceOf(const Verdict& verdict) {
    return verdict.next.empty() ? verdict.sentence : verdict.sentence + " " + verdict.next;
}

} // namespace xbr::host
