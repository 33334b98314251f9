#include "sandbox/commandline.h"
#include "sandbox/pages/settings.h"
#include "sandbox/visitor.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace {

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
};

Options readOptions(const std::vector<std::string>& words) {
    Options options;
    sandbox::CommandLine line;
    line.addSwitch("--deny", options.deny);
    line.addOption("--user", options.account.user);
    line.addOption("--password", options.account.password);
    line.addOption("--open-with", options.program);
    const auto arguments = line.parse(words);
    if (arguments.size() != 1) {
        throw sandbox::UsageError("exactly one URL is needed");
    }
    options.url = arguments.front();
    return options;
}

// `name` in the folder of this program's own file; empty when there is no such executable.
std::string findBeside(const std::string& name) {
    std::error_code error;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
    const auto candidate = self.parent_path() / name;
    return !error && ::access(candidate.c_str(), X_OK) == 0 ? candidate.string() : std::string();
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
    const auto beside = findBeside("xbrhost");
    return beside.empty() ? "xbrhost" : beside;
}

// Runs a program (found in PATH when its name has no '/') without a shell and waits for it. Returns its exit
// code, or 128 plus the signal that ended it. Throws std::system_error when it cannot be started.
int runAndWait(const std::vector<std::string>& words) {
    auto copies = words;
    std::vector<char*> pointers;
    pointers.reserve(copies.size() + 1);
    for (auto& word : copies) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    pid_t child = 0;
    const int error = ::posix_spawnp(&child, pointers.front(), nullptr, nullptr, pointers.data(), environ);
    if (error != 0) {
        throw std::system_error(error, std::generic_category(), "cannot start " + words.front());
    }
    int status = 0;
    while (::waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) {
            throw std::system_error(errno, std::generic_category(), "cannot wait for " + words.front());
        }
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

int visit(const Options& options) {
    const sandbox::Visitor visitor(options.account.user, options.account.password, !options.deny);
    const auto callback = visitor.authorize(options.url);
    return runAndWait({callbackProgram(options.program), "open-url", callback});
}

} // namespace

int main(int count, char** words) {
    return sandbox::runProgram("brindlex-browser", kHelp, {words + 1, words + count},
                               [](const auto& rest) { return visit(readOptions(rest)); });
}
