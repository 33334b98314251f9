#pragma once

#include "host/app/modules/gadgetpanel.h"
#include "host/app/publishing/upload/handover.h"
#include "host/app/publishing/upload/meter.h"
#include "host/app/publishing/upload/tracks.h"
#include "host/app/publishing/verdict/verdict.h"
#include "host/app/session/activity.h"

#include <QTimer>

#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

namespace xbr::host {

/// Follows the uploads of a panel, whoever asked for them: knows which request carried which track, what
/// could not be copied, and the moment at which nothing moves any more. Main thread.
class Follow final : private Activity::Watcher {
public:
    /// Hears of uploads.
    struct Listener {
        std::function<void(const PreparationProgress&)> preparing; ///< while songs are copied and packed
        std::function<void(const UploadProgress&)> sending;        ///< four times a second
        std::function<void(const TrackReport&)> changed; ///< a track looks different, while an upload runs
        std::function<void(const UploadFacts&)> ended;   ///< from the event loop, once for each upload
        std::function<void()> touched;                   ///< the list was read anew, at any time
    };

    Follow(GadgetPanel& panel, Activity& activity, Listener listener);
    Follow(const Follow&) = delete;
    Follow& operator=(const Follow&) = delete;

    /// The panel was given songs, these of them as other files: tracks are called by the user's, and former
    /// uploads are forgotten.
    void named(const std::vector<HandedSong>& songs);

    /// "upload" was performed, and has come back. When nothing was prepared in there, nothing will be.
    void asked();

    /// Ends what runs: songs are not prepared any more, what is on its way is aborted. It has come to its end
    /// when the panel has heard of that.
    void stop();

    /// Ends it now when nothing moves any more.
    void look();

    /// True from the preparation of an upload until nothing moves any more.
    bool isBusy() const { return m_phase != Phase::kIdle; }

    /// The tracks as they are now, by the user's files.
    const std::vector<TrackReport>& tracks() { return m_follower.reports(); }

private:
    enum class Phase : std::uint8_t { kIdle, kPreparing, kSending };

    /// The request that carried a track last.
    struct Carried {
        Exchange exchange;
        int upload = 0; ///< in which it was
    };

    void began(Activity::Kind kind) override;
    void ended(Activity::Kind kind, bool isCancelled) override;
    void exchangeBegan(const Exchange& exchange) override;
    void exchangeProgressed(const Exchange& exchange) override;
    void exchangeEnded(const Exchange& exchange) override;
    void workProgressed(Activity::Kind kind, double fraction, const std::string& what) override;
    void fileFailed(const Problem& problem) override;
    void becameQuiet() override { lookLater(); }

    void setPhase(Phase phase);
    void beginUpload();
    void checkNames();
    void checkRoom();
    void lookLater();
    bool isAtRest();
    void finish();
    void noteTravelling();
    void noteTravelling(const TrackReport& track);
    void tellSending();
    std::string sourceOf(const std::string& path) const;
    void name(TrackReport& report) const;
    UploadFacts facts();
    TrackFact factOf(const TrackReport& report) const;
    void addMissing(UploadFacts& facts);

    GadgetPanel* m_panel;
    Activity* m_activity;
    Listener m_hears;
    Phase m_phase = Phase::kIdle;
    bool m_wasPrepared = false; ///< since the last time that somebody asked
    bool m_isCancelled = false;
    bool m_hasNoRoom = false;
    /// The paths of the user's files, by those that the module got.
    std::unordered_map<std::string, std::string> m_sources;
    std::vector<Problem> m_files;
    std::vector<Finding> m_findings;
    std::map<std::string, Carried> m_carried; ///< by the URL of the track's file
    std::set<std::string> m_travelling;       ///< URLs of the tracks on their way
    int m_upload = 0;                         ///< counts the uploads
    Meter m_meter;                            ///< of this upload
    QTimer m_telling;
    TrackFollower m_follower;
    QTimer m_later;
    Activity::Handle m_watching;
};

} // namespace xbr::host
