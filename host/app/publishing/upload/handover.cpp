#include "host/app/publishing/upload/handover.h"

#include "framework/support/objects/text.h"
#include "framework/support/parts/path.h"
#include "host/app/publishing/verdict/words.h"
#include "host/base/fileurl.h"

#include <filesystem>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kGenre = "TrackList/TrackProperties/primaryGenre";

Genres genresOf(GadgetPanel& panel) {
    std::vector<std::string> names;
    const IParameter* parameter = findParameter(panel.controller(), kGenre);
    // The first choice stands for no genre.
    for (std::int32_t i = 1; parameter && i < parameter->countChoices(); ++i) {
        names.push_back(toString(parameter->choiceAt(i)));
    }
    return Genres(std::move(names));
}

/// The extension of the files that the publish entry wants instead of those with this one; empty when it
/// takes them.
std::string wantedInstead(IPublisher& publisher, const std::string& extension) {
    IFileType* type = fileTypeOf("song." + extension).detach();
    const Result result = publisher.acceptFileType(&type);
    const auto answered = Ref<IFileType>::adopt(type);
    return result == kOk ? "" : toString(answered->extension());
}

Problem moduleProblem(const PublishEntry& entry, const std::string& words) {
    return {Fault::kModule, entry.name, 0, words, {}, {}};
}

/// What is said of a song, as the module is told it.
MediaTags tagsOf(const Plan& plan, const PlannedRelease& release, const PlannedSong& song) {
    // In a panel an album may still become singles: each song keeps what its file says of its album.
    const bool isReleaseTold = plan.isAlbum() && !plan.isForPanel;
    const std::pair<const char*, std::string> texts[] = {
        {"Media:Title", song.title},
        {"Media:Artist", song.artist},
        {"Media:Album", isReleaseTold ? release.title : song.album},
        {"Media:AlbumArtist", isReleaseTold ? release.artist : song.albumArtist},
        {"Media:Genre", song.genre},
    };
    MediaTags tags;
    for (const auto& [name, text] : texts) {
        if (!text.empty()) {
            tags.texts.emplace_back(name, text);
        }
    }
    tags.trackIndex = song.saidNumber;
    return tags;
}

/// As the module thinks of an album first, where all songs share the first one's genre, a single that came
/// without one has it still.
void dropForeignGenres(const std::vector<const PlannedSong*>& songs, GadgetPanel& panel) {
    const auto tracks = panel.tracks();
    const std::int32_t focus = tracks->focus();
    for (std::size_t row = 0; row < songs.size(); ++row) {
        if (songs[row]->genre.empty()) {
            tracks->setFocus(static_cast<std::int32_t>(row));
            // An editor that does not know the genre shows none already, and would not hear of a change.
            panel.set(kGenre, 1);
            panel.set(kGenre, 0);
        }
    }
    tracks->setFocus(focus);
}

/// Gives the items to the module, and sees to the panel's mode.
Outcome<void> give(const Plan& plan, PublishedItems& items, GadgetPanel& panel, const PublishEntry& entry) {
    const auto publisher = createPublisher(entry);
    const int mode = plan.isAlbum() ? 1 : 0;
    if (!plan.isForPanel) {
        // Before, so that the one song of an album is taken with its album's title; and after, as several
        // songs make the module think of an album.
        panel.set(GadgetPanel::kAlbumMode, mode);
    }
    if (!publisher || publisher->publish(&items) != kOk) {
        return moduleProblem(entry, say(Words::tr("it does not take the songs")));
    }
    const auto songs = plan.songs();
    if (!panel.tracks() || panel.tracks()->countRows() != static_cast<std::int32_t>(songs.size())) {
        return moduleProblem(entry, say(Words::tr("it does not take all songs")));
    }
    if (!plan.isForPanel) {
        panel.set(GadgetPanel::kAlbumMode, mode);
    }
    if (!plan.isAlbum()) {
        dropForeignGenres(songs, panel);
    }
    return {};
}

} // namespace

Offer offerOf(GadgetPanel& panel, const PublishEntry& entry) {
    Offer offer;
    offer.genres = genresOf(panel);
    offer.wantedInstead = [publisher = createPublisher(entry)](const std::string& extension) {
        return publisher ? wantedInstead(*publisher, extension) : "";
    };
    offer.isAlbumOn = panel.isAlbum();
    return offer;
}

Outcome<std::vector<HandedSong>> handOver(const Plan& plan, GadgetPanel& panel, const PublishEntry& entry,
                                          RenderedSongs& rendered) {
    std::vector<HandedSong> handed;
    const auto items = make<PublishedItems>();
    for (const PlannedRelease& release : plan.releases) {
        for (const PlannedSong& song : release.songs) {
            const MediaTags tags = tagsOf(plan, release, song);
            const std::string source = fs::absolute(song.source).string();
            const std::string file = song.isRendered ? rendered.pathOf(song.fileName) : source;
            if (song.isRendered) {
                if (auto done = rendered.render(song.source, file); !done) {
                    return done.problem();
                }
                writeWavTags(file, tags);
                handed.push_back({file, source});
            }
            items->add(fileUrl(file), attributesOf(tags));
        }
    }
    if (auto given = give(plan, *items, panel, entry); !given) {
        return given.problem();
    }
    return handed;
}

} // namespace xbr::host
