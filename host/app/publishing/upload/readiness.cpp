#include "host/app/publishing/upload/readiness.h"

#include "framework/support/objects/text.h"
#include "host/app/publishing/verdict/words.h"

#include <algorithm>

namespace xbr::host {

namespace {

Hindrance lackOf(const TrackReport& track) {
    std::vector<Detail> missing = missingDetails(track);
    std::string sentence = say(Words::tr("“%1” lacks: %2."), labelOf(track), wordsOf(missing));
    return {Hindrance::Kind::kIncomplete, std::move(sentence), track.index, std::move(missing)};
}

std::vector<std::int32_t> selectedRows(const IListViewModel& tracks) {
    std::vector<std::int32_t> rows;
    for (std::int32_t row = 0; row < tracks.countRows(); ++row) {
        if (tracks.isSelected(row)) {
            rows.push_back(row);
        }
    }
    return rows;
}

void select(IListViewModel& tracks, const std::vector<std::int32_t>& rows) {
    tracks.setSelection(rows.data(), static_cast<std::int32_t>(rows.size()));
}

} // namespace

Hindrance hindranceOf(const std::vector<TrackReport>& tracks, bool isSignedIn, bool isUploading) {
    if (isUploading) {
        return {Hindrance::Kind::kUploading, say(Words::tr("An upload is running.")), -1, {}};
    }
    if (tracks.empty()) {
        return {Hindrance::Kind::kNoSongs, say(Words::tr("Hand over songs first.")), -1, {}};
    }
    if (!isSignedIn) {
        return {Hindrance::Kind::kNotSignedIn, say(Words::tr("Sign in first.")), -1, {}};
    }
    if (std::all_of(tracks.begin(), tracks.end(),
                    [](const TrackReport& track) { return track.state == TrackState::kDone; })) {
        return {Hindrance::Kind::kAllPublished, say(Words::tr("All songs are published.")), -1, {}};
    }
    const auto isComplete = [](const TrackReport& track) { return missingDetails(track).empty(); };
    return std::any_of(tracks.begin(), tracks.end(), isComplete) ? Hindrance{} : lackOf(tracks.front());
}

Incomplete incompleteOf(const std::vector<TrackReport>& tracks, bool isAlbum) {
    Incomplete incomplete;
    for (const TrackReport& track : tracks) {
        auto missing = missingDetails(track);
        if ((!isAlbum && track.state == TrackState::kDone) || missing.empty()) {
            continue;
        }
        if (incomplete.count == 0) {
            incomplete.first = track;
            incomplete.missing = std::move(missing);
        }
        ++incomplete.count;
    }
    return incomplete;
}

bool isNotTaken(const TrackReport& track) {
    return !track.isUploading &&
           (track.state == TrackState::kFailed || track.state == TrackState::kMissingInformation);
}

void resetTracks(IListViewModel& tracks, const std::vector<std::int32_t>& rows) {
    static constexpr std::string_view kReset = "Reset";
    const auto before = selectedRows(tracks);
    select(tracks, rows);
    Ref<ICommandList> commands;
    tracks.getContextCommands(commands.out());
    for (std::int32_t i = 0; commands && i < commands->count(); ++i) {
        if (view(commands->nameAt(i)) == kReset) {
            commands->perform(i);
        }
    }
    select(tracks, before);
}

} // namespace xbr::host
