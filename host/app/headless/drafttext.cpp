#include "host/app/headless/drafttext.h"

#include "host/app/headless/fieldnames.h"

namespace xbr::host {

namespace {

std::string orNotSet(const std::string& text) {
    return text.empty() ? "(not set)" : text;
}

std::string describeSong(const SongDraft& song) {
    const std::string origin = song.isRendered ? ", rendered from '" + song.source + "'" : "";
    return "  " + std::to_string(song.trackNumber) + ". " + orNotSet(song.title) + " - " +
           orNotSet(song.artist) + " (" + song.fileName + origin + ")";
}

} // namespace

std::vector<std::string> describeDraft(const ReleaseDraft& release, std::size_t index, std::size_t count) {
    std::vector<std::string> lines;
    lines.push_back("Release " + std::to_string(index + 1) + " of " + std::to_string(count) +
                    (release.isComplete() ? "" : " (incomplete)"));
    lines.push_back("  Title:  " + orNotSet(release.title));
    lines.push_back("  Artist: " + orNotSet(release.artist));
    lines.push_back("  Genre:  " + orNotSet(release.genre));
    for (const SongDraft& song : release.songs) {
        lines.push_back(describeSong(song));
    }
    return lines;
}

} // namespace xbr::host
