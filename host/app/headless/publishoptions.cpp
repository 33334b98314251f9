#include "host/app/headless/publishoptions.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace xbr::host {

namespace {

struct ReleaseOption {
    const char* name;
    std::string ReleaseWish::*field;
};

constexpr ReleaseOption kReleaseOptions[] = {{"--album-title", &ReleaseWish::albumTitle},
                                             {"--album-artist", &ReleaseWish::albumArtist},
                                             {"--genre", &ReleaseWish::genre}};

struct SongOption {
    const char* name;
    std::string SongWish::*field;
};

constexpr SongOption kSongOptions[] = {{"--title", &SongWish::title}, {"--artist", &SongWish::artist}};
constexpr char kTrackNumber[] = "--track-number";
constexpr char kReleaseFile[] = "--release";

template <class Options>
const auto* find(const Options& options, const std::string& name) {
    const auto found = std::find_if(std::begin(options), std::end(options),
                                    [&](const auto& option) { return name == option.name; });
    return found == std::end(options) ? nullptr : &*found;
}

bool isSongOption(const std::string& option) {
    return option == kTrackNumber || find(kSongOptions, option) != nullptr;
}

/// Sets a text that is not set yet; otherwise says why not.
std::string setText(std::string& field, const std::string& option, const std::string& value) {
    if (!field.empty()) {
        return option + " is there twice";
    }
    field = value;
    return option == kReleaseFile ? "" : problemOfText(option, value);
}

std::string setTrackNumber(std::int32_t& field, const std::string& value) {
    std::int32_t number = 0;
    const auto [end, failed] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (failed != std::errc() || end != value.data() + value.size() || number < 1 ||
        number > kMaximumTrackNumber) {
        return std::string(kTrackNumber) + " must be a whole number from 1 to " +
               std::to_string(kMaximumTrackNumber);
    }
    return std::exchange(field, number) == 0 ? "" : std::string(kTrackNumber) + " is there twice";
}

std::string takeSongOption(const std::string& option, const std::string& value, ReleaseWish& plan) {
    if (plan.songs.empty()) {
        return option + " belongs to the file before it: put it behind a file";
    }
    SongWish& song = plan.songs.back();
    return option == kTrackNumber ? setTrackNumber(song.number, value)
                                  : setText(song.*find(kSongOptions, option)->field, option, value);
}

} // namespace

bool isPublishValue(const std::string& option) {
    return option == kReleaseFile || isSongOption(option) || find(kReleaseOptions, option) != nullptr;
}

bool takePublishValue(const std::string& option, const std::string& value, PublishOptions& options,
                      std::string& error) {
    if (isSongOption(option)) {
        error = takeSongOption(option, value, options.wish);
    } else if (option == kReleaseFile) {
        error = setText(options.releaseFile, option, value);
    } else {
        error = setText(options.wish.*find(kReleaseOptions, option)->field, option, value);
    }
    return error.empty();
}

std::string checkPublishOptions(const PublishOptions& options) {
    const ReleaseWish& plan = options.wish;
    if (!options.releaseFile.empty()) {
        const bool isAlone = plan.songs.empty() && plan.mode == ReleaseMode::kSingles &&
                             plan.albumTitle.empty() && plan.albumArtist.empty() && plan.genre.empty();
        return isAlone ? "" : "--release tells all about the release: no files and no other words about it";
    }
    if (plan.songs.empty()) {
        return "publish needs at least one file";
    }
    const bool isAboutAlbum = !plan.albumTitle.empty() || !plan.albumArtist.empty();
    if (isAboutAlbum && plan.mode == ReleaseMode::kSingles) {
        return "--album-title and --album-artist need --album: a single bears the title and the artist of "
               "its "
               "song";
    }
    return "";
}

} // namespace xbr::host
