#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

// The rules of editing once more, as plainly as they can be said: every rule looks at everything, each time.

namespace editingmodel {

enum Field : std::size_t { kAlbumTitle, kAlbumArtist, kGenre, kSongTitle, kSongArtist, kFields };

using Texts = std::array<std::string, kFields>;
using Flags = std::array<bool, kFields>;

struct Track {
    std::string title;
    Texts texts;
    std::string singlesGenre, albumGenre, albumModeTitle;
    int number = 1, albumNumber = 1;
    Flags missing{};

    bool operator==(const Track&) const = default;
    bool isComplete() const {
        return std::none_of(texts.begin(), texts.end(), [](const auto& text) { return text.empty(); });
    }
};

using TrackPtr = std::shared_ptr<Track>;

/// What the editor's parameters show; a genre by its name.
struct Shown {
    Texts texts;
    int number = 1;
    Flags missing{};
};

/// The genre that the menu shows for a text.
inline std::string menuGenre(const std::string& text) {
    static const std::pair<const char*, const char*> kMenu[] = {
        {"Rock", "Rock"}, {"Jazz", "Jazz"}, {"rOCK", "Rock"}, {"az", "Jazz"}};
    for (const auto& [known, name] : kMenu) {
        if (text == known) {
            return name;
        }
    }
    return "";
}

class Editing {
public:
    std::vector<TrackPtr> tracks;
    std::vector<TrackPtr> selection;
    int focus = -1;
    bool album = false;
    bool ready = false;
    Shown shown;

    TrackPtr focused() const { return focus < 0 ? nullptr : tracks[static_cast<std::size_t>(focus)]; }

    void insert(const TrackPtr& track) {
        track->albumGenre = track->singlesGenre = track->texts[kGenre];
        if (album) {
            track->albumModeTitle = track->texts[kAlbumTitle];
        }
        tracks.push_back(track);
        switchMode();
    }

    void load(const TrackPtr& track) {
        const Track none;
        const Track& loaded = track ? *track : none;
        shown = {loaded.texts, loaded.number, loaded.missing};
        shown.texts[kGenre] = menuGenre(loaded.texts[kGenre]);
    }

    void toggle(bool toAlbum) {
        album = toAlbum;
        switchMode();
        load(focused());
    }

    void removeFocused() {
        std::erase(selection, focused());
        tracks.erase(tracks.begin() + focus);
        focus = -1;
        load(nullptr);
        updateReady();
    }

    void removeAll() {
        tracks.clear();
        selection.clear();
        focus = -1;
        ready = false;
        load(nullptr);
    }

    void validate(const TrackPtr& single, bool set) {
        for (const auto& track : tracks) {
            if (album || track == single) {
                load(track);
                for (std::size_t i = 0; i < kFields; ++i) {
                    track->missing[i] = set && (track->missing[i] || shown.texts[i].empty());
                }
            }
        }
        load(focused());
    }

    void edit(Field field, const std::string& value) {
        shown.texts[field] = value;
        const Texts values = shown.texts;
        for (const auto& track : targets()) {
            album ? editInAlbum(field, values, *track) : editSingle(field, values, *track);
        }
        if (album && field <= kGenre) {
            for (const auto& track : tracks) {
                track->texts[field] = value;
                if (field != kAlbumArtist) {
                    (field == kGenre ? track->albumGenre : track->albumModeTitle) = value;
                }
                filled(*track, field, value);
            }
        }
        updateReady();
    }

    void number(int value) {
        for (const auto& track : targets()) {
            track->number = album ? value : 1;
            track->albumNumber = album ? value : track->albumNumber;
        }
        shown.number = album ? value : 1;
    }

private:
    std::vector<TrackPtr> targets() const {
        auto found = selection;
        if (focused() && std::find(found.begin(), found.end(), focused()) == found.end()) {
            found.push_back(focused());
        }
        return found;
    }

    void switchMode() {
        if (tracks.empty()) {
            return;
        }
        Track& first = *tracks.front();
        if (album) {
            takeGenre(first, first.albumGenre, first.singlesGenre);
            first.texts[kAlbumTitle] = first.albumModeTitle;
        }
        for (const auto& track : tracks) {
            album ? follow(*track, first) : standAlone(*track);
        }
        updateReady();
    }

    static void takeGenre(Track& track, const std::string& remembered, const std::string& otherwise) {
        const std::string genre = remembered.empty() ? otherwise : remembered;
        track.texts[kGenre] = genre.empty() ? track.texts[kGenre] : genre;
    }

    static void follow(Track& track, const Track& first) {
        track.number = track.albumNumber;
        for (const Field field : {kAlbumTitle, kAlbumArtist, kGenre}) {
            track.texts[field] = first.texts[field];
        }
    }

    static void standAlone(Track& track) {
        track.texts[kAlbumTitle] = track.texts[kSongTitle];
        track.texts[kAlbumArtist] = track.texts[kSongArtist];
        takeGenre(track, track.singlesGenre, track.albumGenre);
        track.number = 1;
    }

    void updateReady() {
        ready =
            std::any_of(tracks.begin(), tracks.end(), [](const auto& track) { return track->isComplete(); });
    }

    /// The mark goes from the track and, as soon as no edited or listed track that shows it has it, from
    /// sight.
    void filled(Track& track, Field field, const std::string& value) {
        if (track.missing[field] && !value.empty()) {
            track.missing[field] = false;
            showMark(field);
        }
    }

    void showMark(Field field) {
        for (const auto& track : targets()) {
            shown.missing[field] = track->missing[field];
        }
        if (album && field <= kGenre) {
            shown.missing[field] = tracks.back()->missing[field];
        }
    }

    void editInAlbum(Field field, const Texts& values, Track& track) {
        if (field == kSongTitle || field == kSongArtist) {
            track.texts[field] = values[field];
            if (field == kSongTitle) {
                track.title = values[field];
            }
            filled(track, field, values[field]);
        }
    }

    void editSingle(Field field, const Texts& values, Track& track) {
        const std::string& value = values[field];
        track.texts[field] = value;
        switch (field) {
        case kAlbumTitle:
            filled(track, kAlbumTitle, value);
            if (value != values[kSongTitle]) {
                track.title = value;
            }
            copyTo(track, kSongTitle, value, values);
            break;
        case kSongTitle:
            track.title = value;
            filled(track, kSongTitle, value);
            copyTo(track, kAlbumTitle, value, values);
            break;
        case kGenre:
            track.singlesGenre = value;
            filled(track, kGenre, value);
            break;
        case kAlbumArtist: {
            const bool hadText = !track.texts[kSongArtist].empty();
            if (copyTo(track, kSongArtist, value, values) && track.missing[kAlbumArtist] && hadText) {
                track.missing[kSongArtist] = shown.missing[kSongArtist] = false;
            }
            filled(track, kAlbumArtist, value);
            break;
        }
        default:
            if (copyTo(track, kAlbumArtist, value, values) && track.missing[kAlbumArtist] && !value.empty()) {
                track.missing[kAlbumArtist] = shown.missing[kSongArtist] = false;
            }
            filled(track, kSongArtist, value);
        }
    }

    bool copyTo(Track& track, Field follower, const std::string& value, const Texts& values) {
        if (value == values[follower]) {
            return false;
        }
        track.texts[follower] = shown.texts[follower] = value;
        return true;
    }
};

} // namespace editingmodel
