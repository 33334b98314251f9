#pragma once

#include "framework/abi/listmodel.h"
#include "framework/support/objects/object.h"
#include "framework/support/parts/listviewmodel.h"
#include "ui/tracks/trackitem.h"

#include <vector>

namespace brindlex {

/// The context menu's "Reset" (category "Tracks"): selected tracks that were sent, or tried, can be sent
/// again.
class ResetCommand final : public xbr::Object<xbr::ICommandList> {
public:
    explicit ResetCommand(xbr::Ref<xbr::ListViewModel> tracks);

    std::int32_t count() const noexcept override { return 1; }
    xbr::Text categoryAt(std::int32_t index) const noexcept override;
    xbr::Text nameAt(std::int32_t index) const noexcept override;
    bool isEnabled(std::int32_t index) const noexcept override;
    xbr::Result perform(std::int32_t index) noexcept override;

private:
    /// The selected tracks that are not on their way and have a state.
    std::vector<TrackItem*> resettable() const;

    xbr::Ref<xbr::ListViewModel> m_tracks;
};

} // namespace brindlex
