#include "host/app/headless/genrescommand.h"

#include "host/app/headless/consolefront.h"
#include "host/app/publishing/upload/handover.h"
#include "host/app/publishing/verdict/words.h"

#include <QStringList>

namespace xbr::host {

namespace {

std::string wordsOfNone(const Genres& genres, const std::string& word) {
    QStringList near;
    for (const std::string& name : genres.near(word)) {
        near.append(QString::fromStdString(name));
    }
    return near.empty() ? say(CommandLine::tr("No genre holds “%1”."), word)
                        : say(CommandLine::tr("No genre holds “%1”. Nearest: %2."), word,
                              near.join(", ").toStdString());
}

} // namespace

ExitCode runGenres(const CommandLine& commandLine) {
    ConsoleSession console(commandLine, Dialogs::kNone);
    const ExitCode started = console.start();
    if (started != ExitCode::kDone) {
        return started;
    }
    const Genres genres = offerOf(console.panel(), {}).genres;
    const std::string word = commandLine.words.empty() ? "" : commandLine.words.front();
    const auto found = genres.like(word);
    if (found.empty()) {
        console.output().ended(ExitCode::kUsage, wordsOfNone(genres, word));
        return ExitCode::kUsage;
    }
    for (const std::string& name : found) {
        console.output().genre(name);
    }
    console.output().ended(ExitCode::kDone, {});
    return ExitCode::kDone;
}

} // namespace xbr::host
