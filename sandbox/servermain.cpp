#include "sandbox/commandline.h"
#include "sandbox/http/server.h"
#include "sandbox/service.h"

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <limits>
#include <pthread.h>
#include <thread>

namespace {

constexpr const char* kHelp = R"(Usage: brindlex-sandbox --inbox DIR [options]

Plays the music distribution service on this computer (127.0.0.1) until it gets SIGTERM or SIGINT.

  --inbox DIR            where accepted releases are kept
  --port N               port to listen on (default 0: a free one)
  --port-file FILE       file that receives the port once the server listens
  --write-settings FILE  settings with which xbrhost finds this server, written once it listens; a file that
                         is somebody else's is left alone
  --log FILE             file to which every request is appended as a line of JSON (no secrets)
  --client-id TEXT       the client program that the service knows (default brindlex-demo)
  --client-secret TEXT   its secret (default brindlex-demo-secret)
  --redirect-uri URI     its return address (default brindlex://authorize)
  --token-lifetime SEC   how long an access token is good (default 3600)
  --help                 this text
)";

struct Options {
    sandbox::Settings settings;
    std::string inbox;
    std::string log;
    std::string portFile;
    std::string settingsFile; ///< for xbrhost
    int port = 0;
};

Options readOptions(const std::vector<std::string>& words) {
    Options options;
    sandbox::CommandLine line;
    line.addOption("--inbox", options.inbox);
    line.addOption("--log", options.log);
    line.addOption("--port-file", options.portFile);
    line.addOption("--write-settings", options.settingsFile);
    line.addOption("--client-id", options.settings.client.id);
    line.addOption("--client-secret", options.settings.client.secret);
    line.addOption("--redirect-uri", options.settings.client.redirectUri);
    line.addOption("--port", [&](const std::string& text) {
        options.port = sandbox::numberFrom("--port", text, 0, 65535);
    });
    line.addOption("--token-lifetime", [&](const std::string& text) {
        options.settings.tokenLifetime = std::chrono::seconds(
            sandbox::numberFrom("--token-lifetime", text, 1, std::numeric_limits<int>::max()));
    });
    const auto arguments = line.parse(words);
    if (!arguments.empty()) {
        throw sandbox::UsageError("unexpected argument '" + arguments.front() + "'");
    }
    if (options.inbox.empty()) {
        throw sandbox::UsageError("option --inbox is missing");
    }
    return options;
}

// Blocked in all threads; one waits for them.
sigset_t endSignals() {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    return signals;
}

// Whoever waits for the file finds it complete, and only its owner reads it: settings hold a secret.
void writeWhole(const std::filesystem::path& file, const std::string& text) {
    auto temporary = file;
    temporary += ".new";
    std::ofstream out(temporary);
    std::filesystem::permissions(temporary,
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    out << text;
    out.close();
    if (!out) {
        throw std::runtime_error("cannot write " + temporary.string());
    }
    std::filesystem::rename(temporary, file);
}

constexpr const char* kOurSettings = "; Written by brindlex-sandbox, which overwrites it.";

// Settings of a real service are not to be lost.
void checkSettingsFile(const std::string& file) {
    std::ifstream in(file);
    std::string first;
    if (in && std::getline(in, first) && first != kOurSettings) {
        throw std::runtime_error(file + " holds other settings: move it away first");
    }
}

void writeSettings(const std::filesystem::path& file, const std::string& settings) {
    if (file.has_parent_path()) {
        std::filesystem::create_directories(file.parent_path());
    }
    writeWhole(file, std::string(kOurSettings) + "\n" + settings);
}

void serve(const Options& options) {
    const auto signals = endSignals();
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);

    checkSettingsFile(options.settingsFile);
    sandbox::Service service(options.settings, options.inbox, options.log);
    sandbox::Server server([&](sandbox::Exchange& exchange) { return service.handle(exchange); });
    const int port = server.open(options.port);
    if (port < 0) {
        throw std::runtime_error("cannot listen on 127.0.0.1 port " + std::to_string(options.port));
    }
    const std::string address = "http://127.0.0.1:" + std::to_string(port);
    if (!options.settingsFile.empty()) {
        writeSettings(options.settingsFile, sandbox::hostSettings(options.settings.client, address));
    }
    if (!options.portFile.empty()) { // last: who waits for it finds the rest
        writeWhole(options.portFile, std::to_string(port) + "\n");
    }
    std::cout << "listening on " << address << "/" << std::endl;

    std::thread network([&] { server.run(); });
    int signal = 0;
    sigwait(&signals, &signal);
    server.stop();
    network.join();
}

} // namespace

int main(int count, char** words) {
    return sandbox::runProgram("brindlex-sandbox", kHelp, {words + 1, words + count}, [](const auto& rest) {
        serve(readOptions(rest));
        return 0;
    });
}
