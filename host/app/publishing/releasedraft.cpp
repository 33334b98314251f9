#include "host/app/publishing/releasedraft.h"

#include "framework/support/objects/text.h"
#include "framework/support/objects/value.h"
#include "framework/support/parts/path.h"

#include <algorithm>
#include <filesystem>

namespace xbr::host {

namespace {

const IParameter* editorParameter(GadgetPanel& panel, const std::string& name) {
    return findParameter(panel.controller(), "TrackList/TrackProperties/" + name);
}

std::string editorText(GadgetPanel& panel, const std::string& name) {
    const IParameter* parameter = editorParameter(panel, name);
    return parameter ? std::string(textOf(parameter->value())) : std::string();
}

std::int64_t editorNumber(GadgetPanel& panel, const std::string& name) {
    const IParameter* parameter = editorParameter(panel, name);
    return parameter ? integerOf(parameter->value()) : 0;
}

void noteMissing(std::vector<std::string>& missing, const std::string& value, const char* field) {
    if (value.empty()) {
        missing.emplace_back(field);
    }
}

SongDraft readSong(GadgetPanel& panel, const TakenSong& taken) {
    SongDraft song;
    song.title = editorText(panel, "songTitle");
    song.artist = editorText(panel, "songArtist");
    song.trackNumber = editorNumber(panel, "trackNumber");
    song.source = taken.source;
    song.fileName = std::filesystem::path(taken.file).filename().string();
    song.isRendered = taken.isRendered;
    noteMissing(song.missing, song.title, "songTitle");
    noteMissing(song.missing, song.artist, "songArtist");
    return song;
}

/// A genre that came with the song goes out as it came: the editor's menu shows the nearest that it has.
ReleaseDraft readRelease(GadgetPanel& panel, const TakenSong& first, const GenreList& genres) {
    ReleaseDraft release;
    release.title = editorText(panel, "albumTitle");
    release.artist = editorText(panel, "albumArtist");
    release.genre = first.genre;
    if (!genres.isEmpty() && !release.genre.empty() && !genres.find(release.genre)) {
        release.genreProblem = genres.describeUnknown(release.genre);
    }
    noteMissing(release.missing, release.title, "albumTitle");
    noteMissing(release.missing, release.artist, "albumArtist");
    noteMissing(release.missing, release.genre, "primaryGenre");
    return release;
}

} // namespace

bool ReleaseDraft::isComplete() const {
    return missing.empty() && genreProblem.empty() &&
           std::all_of(songs.begin(), songs.end(),
                       [](const SongDraft& song) { return song.missing.empty(); });
}

std::vector<ReleaseDraft> readDrafts(GadgetPanel& panel, const ReleaseIntake& intake, ReleaseMode mode) {
    std::vector<ReleaseDraft> releases;
    const GenreList genres = GenreList::read(panel);
    const auto tracks = panel.tracks();
    const std::int32_t focus = tracks->focus();
    for (std::size_t i = 0; i < intake.songs().size(); ++i) {
        tracks->setFocus(static_cast<std::int32_t>(i));
        if (releases.empty() || mode == ReleaseMode::kSingles) {
            releases.push_back(readRelease(panel, intake.songs()[i], genres));
        }
        releases.back().songs.push_back(readSong(panel, intake.songs()[i]));
    }
    tracks->setFocus(focus);
    return releases;
}

} // namespace xbr::host
