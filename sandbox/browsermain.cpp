#include "sandbox/commandline.h"
#include "sandbox/launcher.h"
#include "sandbox/pages/settings.h"
#include "sandbox/visitor.h"

#include <cstdlib>
#include <iostream>

namespace {

constexpr int kFailed = 1;
constexpr int kUsage = 2;

constexpr const char* kHelp = R"(Usage: brindlex-browser [options] URL

Plays a person with a browser: opens the authorization page of a local brindlex-sandbox, signs in, allows, and
hands the callback to 'PROGRAM open-url CALLBACK', whose exit code it returns. Can be used as $BROWSER.

  --deny                 press Deny instead of Allow
  --user TEXT            the account to sign in with (default: the sample account)
  --password TEXT        its password
  --open-with PROGRAM    who gets the callback (default: $BRINDLEX_CALLBACK_PROGRAM, else xbrhost beside this
                         program, else xbrhost in PATH)
  --help                 this text

Only http addresses of this computer are opened.
Exit codes: 1 the pages could not be used or PROGRAM not be started, 2 wrong usage, otherwise that of PROGRAM.
)";

struct Options {
    sandbox::Account account;
    std::string program;
    std::string url;
    bool deny = false;
    bool help = false;
};

Options readOptions(const std::vector<std::string>& words) {
    Options options;
    sandbox::CommandLine line;
    line.addSwitch("--help", options.help);
    line.addSwitch("--deny", options.deny);
    line.addOption("--user", options.account.user);
    line.addOption("--password", options.account.password);
    line.addOption("--open-with", options.program);
    const auto arguments = line.parse(words);
    if (arguments.size() != 1 && !options.help) {
        throw sandbox::UsageError("exactly one URL is needed");
    }
    options.url = arguments.empty() ? "" : arguments.front();
    return options;
}

std::string callbackProgram(const std::string& given) {
    if (!given.empty()) {
        return given;
    }
    // NOLINTNEXTLINE(concurrency-mt-unsafe): no other thread is there yet
    const char* configured = std::getenv("BRINDLEX_CALLBACK_PROGRAM");
    if (configured != nullptr && *configured != '\0') {
        return configured;
    }
    const auto beside = sandbox::findBeside("xbrhost");
    return beside.empty() ? "xbrhost" : beside;
}

int visit(const Options& options) {
    sandbox::Visitor visitor(options.account.user, options.account.password, !options.deny);
    const auto callback = visitor.authorize(options.url);
    return sandbox::runProgram({callbackProgram(options.program), "open-url", callback});
}

} // namespace

int main(int count, char** words) {
    try {
        const auto options = readOptions({words + 1, words + count});
        if (options.help) {
            std::cout << kHelp;
            return 0;
        }
        return visit(options);
    } catch (const sandbox::UsageError& error) {
        std::cerr << "brindlex-browser: " << error.what() << "\nTry 'brindlex-browser --help'.\n";
        return kUsage;
    } catch (const std::exception& error) {
        std::cerr << "brindlex-browser: " << error.what() << '\n';
        return kFailed;
    }
}
