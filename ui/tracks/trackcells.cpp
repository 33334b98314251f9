#include "ui/tracks/trackcells.h"

#include "framework/support/parts/modulecomponent.h"

#include <array>
#include <string>

namespace brindlex {

namespace {

enum Index : std::int32_t { kTitle = 0, kFile = 1, kState = 2 };

constexpr std::array<TrackColumn, kTrackColumns> kColumns{{{"Title", 150}, {"File", 300}, {"State", 150}}};

xbr::Cell stateCell(const TrackItem& track) {
    if (track.uploading) {
        const int percent = static_cast<int>(track.progress * 100.0);
        return {std::to_string(percent) + "%", xbr::CellStyle::kBusy};
    }
    switch (track.state) {
    case TrackUploadState::kDone:
        return {xbr::translate("Done")};
    case TrackUploadState::kFailed:
        return {xbr::translate("Failed"), xbr::CellStyle::kError};
    case TrackUploadState::kMissingInformation:
        return {xbr::translate("Missing Information")};
    default:
        return {};
    }
}

} // namespace

const TrackColumn& trackColumn(std::int32_t index) {
    return kColumns.at(static_cast<std::size_t>(index));
}

xbr::Cell trackCell(const TrackItem& track, std::int32_t column) {
    switch (column) {
    case kTitle:
        return {track.metadata->songTitle};
    case kFile:
        return {track.file.fileName()};
    case kState:
        return stateCell(track);
    default:
        return {};
    }
}

} // namespace brindlex
