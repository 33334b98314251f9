#pragma once

#include "host/app/headless/publishoptions.h"

#include <cstdint>
#include <string>
#include <vector>

namespace xbr::host {

enum class Command : std::uint8_t { kHelp, kVersion, kPublish, kOpenUrl, kSignIn, kSignOut, kStatus };

struct CommandLine {
    Command command = Command::kHelp;
    bool isJson = false;
    std::string module; ///< path; empty for the usual one
    std::string url;    ///< of open-url, as bytes
    PublishOptions publish;
};

/// Reads the arguments behind the program's name. False, with the reason in `error`, when they make no sense.
bool parseCommandLine(const std::vector<std::string>& arguments, CommandLine& commandLine,
                      std::string& error);

/// What the program can do, for --help.
std::string helpText();

} // namespace xbr::host
