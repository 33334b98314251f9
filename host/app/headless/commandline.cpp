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
    if (option == "--album" || option == "--dry-run" || option == "--skip-unreadable" ||
        option == "--skip-incomplete" || isPublishValue(option)) {
        return command == Command::kPublish;
    }
    return (option == "--json" || option == "--module") && command != Command::kOpenUrl &&
           command != Command::kHelp && command != Command::kVersion;
}

/// Walks through the arguments and fills a command line.
class Parser {
public:
    Parser(const std::vector<std::string>& arguments, CommandLine& commandLine, std::string& error)
        : m_arguments(&arguments),
          m_commandLine(&commandLine),
          m_error(&error) {}

    bool parse() {
        bool areOptionsOver = false;
        while (m_next < m_arguments->size()) {
            const std::string& argument = (*m_arguments)[m_next++];
            if (areOptionsOver || argument.size() < 2 || argument.front() != '-') {
                takeArgument(argument);
            } else if (argument == "--") {
                areOptionsOver = true;
            } else {
                takeOption(argument);
            }
            if (!m_error->empty()) {
                return false;
            }
        }
        return true;
    }

private:
    void takeArgument(const std::string& argument) {
        if (m_commandLine->command == Command::kPublish) {
            m_commandLine->publish.wish.songs.push_back({argument, {}, {}, {}, 0});
        } else if (m_commandLine->command == Command::kOpenUrl && m_commandLine->url.empty()) {
            m_commandLine->url = argument;
        } else if (m_commandLine->command != Command::kHelp) {
            *m_error = "'" + argument + "' is one argument too many";
        }
    }

    void takeOption(const std::string& option) {
        if (option == "--help" || option == "-h") {
            m_commandLine->command = Command::kHelp;
        } else if (!isOptionOf(m_commandLine->command, option)) {
            *m_error = "there is no option '" + option + "' here";
        } else if (option == "--json") {
            m_commandLine->isJson = true;
        } else if (option == "--album") {
            m_commandLine->publish.wish.mode = ReleaseMode::kAlbum;
        } else if (option == "--dry-run") {
            m_commandLine->publish.isDryRun = true;
        } else if (option == "--skip-unreadable") {
            m_commandLine->publish.wish.skipsUnreadable = true;
        } else if (option == "--skip-incomplete") {
            m_commandLine->publish.wish.skipsIncomplete = true;
        } else if (m_next == m_arguments->size()) {
            *m_error = "something is missing after " + option;
        } else if (option == "--module") {
            m_commandLine->module = (*m_arguments)[m_next++];
        } else {
            takePublishValue(option, (*m_arguments)[m_next++], m_commandLine->publish, *m_error);
        }
    }

    const std::vector<std::string>* m_arguments;
    CommandLine* m_commandLine;
    std::string* m_error;
    std::size_t m_next = 1; ///< behind the command
};

std::string check(const CommandLine& commandLine) {
    switch (commandLine.command) {
    case Command::kPublish:
        return checkPublishOptions(commandLine.publish);
    case Command::kOpenUrl:
        return commandLine.url.empty() ? "open-url needs one URL" : "";
    default:
        return "";
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
    if (Parser(arguments, commandLine, error).parse()) {
        error = check(commandLine);
    }
    return error.empty();
}

std::string helpText() {
    return R"(Usage: xbrhost [COMMAND] [OPTION]... [ARGUMENT]...

Commands:
  window [FILE...]            open the window, with songs; also without a command
  publish [--album] FILE...   publish songs; signs in when needed
  publish --release FILE      publish what a release file says (see xbrhost(1))
  sign-in                     sign in through the browser
  sign-out                    forget the sign-in
  status                      tell whether somebody is signed in
  open-url URL                hand a callback URL to the running hosts

WAV, FLAC and MP3 go as they are; AIFF, OGG and whatever else libsndfile reads
is rendered to WAV first.

Options of publish, which win over what the tags of the files say:
  --album              all files are one release; otherwise each is one of its own
  --album-title TEXT   title of the album
  --album-artist TEXT  artist of the album
  --genre NAME         genre of all releases
  --title TEXT         title of the song before it: publish a.wav --title Night
  --artist TEXT        artist of the song before it
  --track-number N     number of the song before it
  --dry-run            show what would be sent and what is missing; send nothing
  --skip-unreadable    leave out files that cannot be published
  --skip-incomplete    leave out singles with missing details

Options:
  --json         tell what happens as one JSON object per line
  --module PATH  the module to use
  --help         this text
  --version      the version

Environment:
  XBRHOST_CONFIG       file with the settings of the services
                       (otherwise ~/.config/xbrhost/services.ini)
  XBRHOST_MODULE_PATH  modules: files and folders, separated by ":"

Exit codes:
  0  all done                      7  information is missing, nothing was taken
  1  some track was not taken      8  no running host takes the URL
  2  wrong usage                   9  the settings are missing, wrong or incomplete
  3  a file cannot be published    10  the sign-in has expired
  4  the module cannot be used     130  interrupted
  5  not signed in
  6  the service cannot be reached
)";
}

} // namespace xbr::host
