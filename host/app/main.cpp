#include "host/app/audio/audiofolder.h"
#include "host/app/headless/command.h"
#include "host/app/headless/commandline/commandline.h"
#include "host/app/window/start/window.h"

#include <filesystem>
#include <sys/prctl.h>

namespace {

using namespace xbr::host;
namespace fs = std::filesystem;

/// The songs, and those of folders. Another process may get the paths, with a working folder of its own.
std::vector<std::string> songsOf(const std::vector<std::string>& words) {
    std::vector<std::string> songs;
    std::error_code failed;
    for (const std::string& word : words) {
        const fs::path path = fs::absolute(word, failed).lexically_normal();
        const auto found = audioFilesIn(path.string(), true);
        if (found) {
            songs.insert(songs.end(), found->begin(), found->end());
        } else {
            songs.push_back(failed ? word : path.string());
        }
    }
    return songs;
}

} // namespace

int main(int argc, char** argv) {
    // Tokens pass through many hands that cannot be made to wipe them: nobody gets a dump of this process.
    prctl(PR_SET_DUMPABLE, 0);
    // Taken before Qt converts them: names of files are bytes.
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const auto commandLine = parseCommandLine(arguments);
    const bool isWindow = commandLine && commandLine->command == Command::kWindow;
    return static_cast<int>(isWindow
                                ? runWindow(argc, argv, {commandLine->module, songsOf(commandLine->words)})
                                : runCommand(argc, argv, arguments));
}
