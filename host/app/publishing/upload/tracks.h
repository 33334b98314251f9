#pragma once

#include "framework/abi/listmodel.h"
#include "framework/support/objects/object.h"
#include "host/app/modules/gadgetpanel.h"
#include "host/app/publishing/plan.h"
#include "host/base/listener.h"

#include <QTimer>

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace xbr::host {

/// What the panel's editor shows of a track.
struct TrackDetails {
    std::array<std::string, kDetails.size()> texts; ///< in the order of kDetails
    std::int64_t number = 0;
    bool isKnown = false; ///< the module tells of it

    const std::string& text(Detail detail) const { return texts[static_cast<std::size_t>(detail)]; }
    bool operator==(const TrackDetails&) const = default;
};

/// One row of the list of tracks.
struct TrackReport {
    std::int32_t index = 0; ///< from 0
    std::string title;
    std::string file;     ///< URL, of the user's file where that is known
    std::string rendered; ///< URL of what the module got in its place; empty when it got the file itself
    TrackState state = TrackState::kNone;
    bool isUploading = false;
    double progress = 0.0; ///< fraction of the transfer
    TrackDetails details;

    bool operator==(const TrackReport&) const = default;
};

/// The URL by which the module knows the track.
inline const std::string& sentFile(const TrackReport& track) {
    return track.rendered.empty() ? track.file : track.rendered;
}

/// What to call a track: its title, or the name of its file when it has none.
std::string labelOf(const TrackReport& track);

/// What a track lacks that a release needs, as far as the module tells of its details.
std::vector<Detail> missingDetails(const TrackReport& track);

/// Reads a list of tracks and tells what changes in it. A list that says "changed" is read with the next turn
/// of the event loop, or when somebody asks: an album of many tracks says so for each of them.
class TrackFollower {
public:
    using Changed = std::function<void(const TrackReport& track)>;
    using Name = std::function<void(TrackReport& track)>;

    /// `touched` is called once the list was read after it had changed, and for each of its rows that says
    /// so; `changed` before that for each track that looks different from before. `name` puts the user's file
    /// into what was read.
    TrackFollower(
        Ref<IListViewModel> tracks, std::function<void()> touched, Changed changed,
        Name name = [](TrackReport&) {});

    /// The tracks as they are now. May call `changed`.
    const std::vector<TrackReport>& reports();
    bool isUploading();

    /// Tracks have other names from now on: the list is read as if it had changed.
    void rename() { m_later.start(); }

private:
    void catchUp();
    void readAll();
    void readRow(std::int32_t row);

    Ref<IListViewModel> m_tracks;
    std::function<void()> m_touched;
    Changed m_changed;
    Name m_name;
    std::vector<TrackReport> m_reports;
    QTimer m_later; ///< runs while the list has changed and was not read since
    Listener m_listener;
};

} // namespace xbr::host
