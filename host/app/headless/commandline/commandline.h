#pragma once

#include "host/app/publishing/release.h"
#include "host/base/problem.h"

#include <QCoreApplication>

#include <cstdint>
#include <string>
#include <vector>

namespace xbr::host {

enum class Command : std::uint8_t {
    kWindow,
    kPublish,
    kGenres,
    kSignIn,
    kSignOut,
    kStatus,
    kOpenUrl,
    kHelp,
    kVersion,
};

/// What the user asks the program for.
struct CommandLine {
    Command command = Command::kWindow;
    bool isQuiet = false;
    bool isVerbose = false;
    bool isJson = false;
    std::string module;             ///< path; empty for the usual ones
    std::vector<std::string> words; ///< behind the command, as bytes: songs of the window, a word, a link
    std::string topic;              ///< of help; empty for all of it

    // Of publish
    ReleaseWish wish;
    std::string releaseFile; ///< instead of the wish; empty for none
    bool isAlbum = false;    ///< the wish's mode says it, too
    bool isRecursive = false;
    bool isDryRun = false;
    std::string account; ///< the only one to send as; empty for any

    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

/// Reads the arguments behind the program's name. The words of a problem are a sentence.
Outcome<CommandLine> parseCommandLine(const std::vector<std::string>& arguments);

/// What the program can do, or one of its commands.
std::string helpText(const std::string& topic);

/// Why a text cannot be part of a release; empty when it can be. `name` is what the message calls it.
std::string problemOfText(const std::string& name, const std::string& text);

} // namespace xbr::host
