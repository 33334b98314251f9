#include "host/app/headless/output.h"

#include "host/app/headless/terminal.h"
#include "host/base/textscan.h"

#include <iostream>

namespace xbr::host {

std::unique_ptr<Output> makeOutput(const CommandLine& commandLine) {
    return commandLine.isJson ? makeJsonOutput() : makeTextOutput(commandLine.isQuiet, commandLine.isVerbose);
}

void printError(std::string_view text) {
    std::cerr << "xbrhost: " << forTerminal(plainText(text)) << std::endl;
}

std::string sentenceOf(const Verdict& verdict) {
    return verdict.next.empty() ? verdict.sentence : verdict.sentence + " " + verdict.next;
}

} // namespace xbr::host
