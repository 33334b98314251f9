#include "host/app/headless/command.h"
#include "host/app/window/start/window.h"

#include <iostream>

namespace {

using namespace xbr::host;

ExitCode openWindow(int& argc, char** argv, const std::vector<std::string>& arguments) {
    const auto options = parseWindowOptions(arguments);
    if (!options) {
        std::cerr << "xbrhost: " << options.problem().words << " (see xbrhost --help)" << std::endl;
        return ExitCode::kUsage;
    }
    return runWindow(argc, argv, *options);
}

} // namespace

int main(int argc, char** argv) {
    // Taken before Qt converts them: names of files are bytes.
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    return static_cast<int>(isForWindow(arguments) ? openWindow(argc, argv, arguments)
                                                   : runCommand(argc, argv, arguments));
}
