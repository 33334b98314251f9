#include "ui/tracks/resetcommand.h"

#include "framework/support/objects/text.h"
#include "framework/support/parts/modulecomponent.h"

namespace brindlex {

ResetCommand::ResetCommand(xbr::Ref<xbr::ListViewModel> tracks) : m_tracks(std::move(tracks)) {}

xbr::Text ResetCommand::categoryAt(std::int32_t index) const noexcept {
    return xbr::toText(index == 0 ? "Tracks" : "");
}

xbr::Text ResetCommand::nameAt(std::int32_t index) const noexcept {
    return xbr::toText(index == 0 ? xbr::translatable("Reset") : "");
}

std::vector<TrackItem*> ResetCommand::resettable() const {
    std::vector<TrackItem*> found;
    for (const auto& item : m_tracks->selection()) {
        TrackItem* track = TrackItem::from(*item);
        if (!track->uploading && track->state != TrackUploadState::kNone) {
            found.push_back(track);
        }
    }
    return found;
}

bool ResetCommand::isEnabled(std::int32_t index) const noexcept {
    return index == 0 && !resettable().empty();
}

xbr::Result ResetCommand::perform(std::int32_t index) noexcept {
    const auto tracks = index == 0 ? resettable() : std::vector<TrackItem*>();
    if (tracks.empty()) {
        return xbr::kFalse;
    }
    for (TrackItem* track : tracks) {
        track->state = TrackUploadState::kNone;
    }
    m_tracks->signalChanged();
    return xbr::kOk;
}

} // namespace brindlex
