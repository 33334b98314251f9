#pragma once

#include "framework/support/parts/component.h"
#include "framework/support/parts/listviewmodel.h"
#include "ui/tracks/trackediting.h"
#include "ui/tracks/trackitem.h"

#include <cstdint>
#include <vector>

namespace brindlex {

/// Edits the metadata of the track with the focus, and tells whether anything can be uploaded. A component
/// named "TrackProperties" with the parameters 100 "albumTitle" to 110 "songArtistMissing" and the property
/// "hasFocusItem".
class TrackPropertyComponent final : public xbr::Component {
public:
    /// `tracks` is the list whose items are edited; kept.
    explicit TrackPropertyComponent(xbr::Ref<xbr::ListViewModel> tracks);

    UploadMode mode() const { return m_mode; }
    void setMode(UploadMode mode);

    /// True while at least one track of the list is complete.
    bool isReady() const { return m_ready; }

    /// Loads a track into the parameters; null empties and disables them.
    void setItem(TrackItem* item);

    /// Gives every track the release values of the present mode: one album's, or each song's own.
    void applyMode();

    /// The list has a new last track. The same as `applyMode`, but the others cost nothing while they have
    /// those values still, so that adding many tracks one by one stays quick.
    void trackAdded();

    /// Loads track `index` and marks its missing values, or clears all five marks.
    void validateItem(Marks marks, std::size_t index);

    /// Recomputes `isReady`; "changed" is signalled when it changed.
    void updateReady();

    /// The list is being emptied: nothing is ready any more.
    void clearReady();

    /// A track is being taken out of the list: others may come first now.
    void tracksRemoved() { m_isInLine = false; }

    xbr::Result getProperty(xbr::Text name, xbr::Value* out) noexcept override;

protected:
    void parameterChanged(xbr::Parameter& parameter) override;

private:
    /// The selected tracks in the order of selection, and the one with the focus.
    Tracks editedTracks() const;
    void loadParameters(const TrackFields& record);
    void bringInLine(TrackFields& record) const;
    void setReady(bool ready);

    xbr::Ref<xbr::ListViewModel> m_tracks;
    UploadMode m_mode = UploadMode::kSingles;
    bool m_isInLine = false; ///< all tracks have the mode's values and are accounted for in `m_ready`
    bool m_ready = false;
    bool m_hasItem = false;
    bool m_updating =
        false; ///< a track is being loaded: views that write back what they are shown change nothing
};

} // namespace brindlex
