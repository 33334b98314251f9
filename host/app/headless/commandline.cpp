#include "host/app/headless/commandline.h"

#include <algorithm>

namespace xbr::host {

namespace {

struct Name {
    const char* name;
    Command command;
};

constexpr Name kCommands[] = {
    {"--help", Command::kHelp},      {"-h", Command::kHelp},          {"--version", Command::kVersion},
    {"publish", Command::kPublish},  {"open-url", Command::kOpenUrl}, {"sign-in", Command::kSignIn},
    {"sign-out", Command::kSignOut}, {"status", Command::kStatus},
};

/// Options that belong to a command; --module and --json to all that load the module.
bool isOptionOf(Command command, const std::string& option) {
    if (option == "--album") {
        return command == Command::kPublish;
    }
    return (option == "--json" || option == "--module") && command != Command::kOpenUrl &&
           command != Command::kHelp && command != Command::kVersion;
}

/// Takes the option at `next`; `next` is behind it then.
bool takeOption(const std::vector<std::string>& arguments, std::size_t& next, CommandLine& commandLine,
                std::string& error) {
    const std::string& option = arguments[next++];
    if (option == "--help" || option == "-h") {
        commandLine.command = Command::kHelp;
    } else if (!isOptionOf(commandLine.command, option)) {
        error = "there is no option '" + option + "' here";
    } else if (option == "--json") {
        commandLine.isJson = true;
    } else if (option == "--album") {
        commandLine.isAlbum = true;
    } else if (next == arguments.size()) {
        error = "a path is missing after --module";
    } else {
        commandLine.module = arguments[next++];
    }
    return error.empty();
}

std::string checkArguments(const CommandLine& commandLine) {
    const std::size_t count = commandLine.arguments.size();
    switch (commandLine.command) {
    case Command::kPublish:
        return count > 0 ? "" : "publish needs at least one file";
    case Command::kOpenUrl:
        return count == 1 ? "" : "open-url needs one URL";
    case Command::kHelp:
        return "";
    default:
        return count == 0 ? "" : "'" + commandLine.arguments.front() + "' is one argument too many";
    }
}

} // namespace

bool parseCommandLine(const std::vector<std::string>& arguments, CommandLine& commandLine,
                      std::string& error) {
    if (arguments.empty()) {
        error = "a command is missing";
        return false;
    }
    const auto found = std::find_if(std::begin(kCommands), std::end(kCommands),
                                    [&](const Name& name) { return arguments.front() == name.name; });
    if (found == std::end(kCommands)) {
        error = "there is no command '" + arguments.front() + "'";
        return false;
    }
    commandLine.command = found->command;
    bool areOptionsOver = false;
    for (std::size_t next = 1; next < arguments.size();) {
        const std::string& argument = arguments[next];
        if (areOptionsOver || argument.size() < 2 || argument.front() != '-') {
            commandLine.arguments.push_back(argument);
            ++next;
        } else if (argument == "--") {
            areOptionsOver = true;
            ++next;
        } else if (!takeOption(arguments, next, commandLine, error)) {
            return false;
        }
    }
    error = checkArguments(commandLine);
    return error.empty();
}

std::string helpText() {
    return R"(Usage: xbrhost COMMAND [OPTION]... [ARGUMENT]...

Commands:
  publish [--album] FILE...   publish songs (wav, flac, mp3); signs in when needed
  sign-in                     sign in through the browser
  sign-out                    forget the sign-in
  status                      tell whether somebody is signed in
  open-url URL                hand a callback URL to the running hosts

Options:
  --album        all files are one release; otherwise each file is one of its own
  --json         tell what happens as one JSON object per line
  --module PATH  the module to use
  --help         this text
  --version      the version

Environment:
  XBRHOST_CONFIG       file with the settings of the services
                       (otherwise ~/.config/xbrhost/services.ini)
  XBRHOST_MODULE_PATH  modules: files and folders, separated by ":"

Exit codes:
  0  all done                      6  the service cannot be reached
  1  some track was not taken      7  information is missing, nothing was taken
  2  wrong usage                   8  no running host takes the URL
  3  a file cannot be published    9  the settings are missing or incomplete
  4  the module cannot be used     130  interrupted
  5  not signed in
)";
}

} // namespace xbr::host
