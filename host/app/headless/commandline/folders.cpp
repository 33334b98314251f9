#include "host/app/headless/commandline/folders.h"

#include "host/app/audio/audiofolder.h"
#include "host/app/headless/commandline/commandline.h"
#include "host/app/publishing/verdict/words.h"

#include <filesystem>

namespace xbr::host {

namespace {

Problem complaint(Fault fault, const QString& text, const std::string& folder, const std::string& more = {}) {
    return {fault, folder, 0, more.empty() ? say(text, folder) : say(text, folder, more), {}, {}};
}

Problem cannotBeRead(const Problem& problem) {
    return complaint(Fault::kUnreadable, CommandLine::tr("“%1” cannot be read: %2."), problem.subject,
                     wordsOfErrno(problem.code));
}

Problem isEmpty(const std::string& folder, bool isRecursive) {
    return complaint(
        Fault::kNotAudio,
        isRecursive ? CommandLine::tr("“%1” and the folders in it hold no songs.")
                    : CommandLine::tr("“%1” holds no songs; --recursive looks into the folders in it, too."),
        folder);
}

Outcome<std::vector<SongWish>> songsIn(const SongWish& folder, bool isRecursive) {
    if (!folder.title.empty() || folder.number != 0) {
        return complaint(
            Fault::kWish,
            CommandLine::tr("--title and --track-number belong to one song, and “%1” is a folder."),
            folder.path);
    }
    const auto files = audioFilesIn(folder.path, isRecursive);
    if (!files) {
        return cannotBeRead(files.problem());
    }
    if (files->empty()) {
        return isEmpty(folder.path, isRecursive);
    }
    std::vector<SongWish> songs;
    for (const std::string& file : *files) {
        songs.push_back(folder);
        songs.back().path = file;
    }
    return songs;
}

} // namespace

Outcome<void> expandFolders(ReleaseWish& wish, bool isRecursive) {
    std::vector<SongWish> songs;
    for (const SongWish& song : wish.songs) {
        std::error_code failed;
        if (!std::filesystem::is_directory(song.path, failed)) {
            songs.push_back(song);
            continue;
        }
        auto found = songsIn(song, isRecursive);
        if (!found) {
            return found.problem();
        }
        songs.insert(songs.end(), found->begin(), found->end());
    }
    wish.songs = std::move(songs);
    return {};
}

} // namespace xbr::host
