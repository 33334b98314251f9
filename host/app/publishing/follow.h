#pragma once

#include "host/app/modules/gadgetpanel.h"
#include "host/app/publishing/handover.h"
#include "host/app/publishing/tracks.h"
#include "host/app/publishing/verdict.h"
#include "host/app/session/activity.h"

#include <QTimer>

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace xbr::host {

/// Follows the uploads of a panel, whoever asked for them: knows which request carried which track, what
/// could not be copied, and the moment at which nothing moves any more. Main thread.
class Follow final : private Activity::Watcher {
public:
    using Preparing = std::function<void()>;
    using Changed = std::function<void(const TrackReport& track)>;
    using Ended = std::function<void(const UploadFacts& facts)>;

    /// `preparing` is called when songs begin to be copied, `changed` for each track that looks different
    /// from before, `ended` from the event loop once for each upload.
    Follow(GadgetPanel& panel, Activity& activity, Preparing preparing, Changed changed, Ended ended);
    Follow(const Follow&) = delete;
    Follow& operator=(const Follow&) = delete;

    /// The panel was given songs: tracks are called by the user's files, and former uploads are forgotten.
    void named(std::vector<HandedSong> songs);

    /// "upload" was performed, and has come back. When nothing was prepared in there, nothing will be.
    void asked();

    /// Ends it where it stands: what is on its way is given up.
    void stop();

    /// Ends it now when nothing moves any more.
    void look();

    /// True from the preparation of an upload until nothing moves any more.
    bool isBusy() const { return m_phase != Phase::kIdle; }

    /// The tracks as they are now, by the user's files.
    std::vector<TrackReport> tracks();

private:
    enum class Phase : std::uint8_t { kIdle, kPreparing, kSending };

    /// What is known of the request that carried a track last.
    struct Carried {
        std::int64_t sent = 0;
        std::int64_t total = 0;
        int status = 0;
        std::string said;
        Problem problem;
    };

    void began(Activity::Kind kind) override;
    void ended(Activity::Kind kind, bool isCancelled) override;
    void exchangeEnded(const Exchange& exchange) override;
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
    TrackReport named(TrackReport report) const;
    std::string sourceOf(const std::string& url) const;
    UploadFacts facts();
    TrackFact factOf(const TrackReport& report) const;
    void addMissing(UploadFacts& facts);

    GadgetPanel* m_panel;
    Activity* m_activity;
    Preparing m_preparing;
    Changed m_changed;
    Ended m_ended;
    Phase m_phase = Phase::kIdle;
    bool m_wasPrepared = false; ///< since the last time that somebody asked
    bool m_isCancelled = false;
    bool m_hasNoRoom = false;
    std::vector<HandedSong> m_songs;
    std::vector<Problem> m_files;
    std::vector<Finding> m_findings;
    std::map<std::string, Carried> m_carried; ///< by the URL of the track's file
    std::vector<std::string> m_travelling;    ///< URLs of the tracks on their way
    TrackFollower m_follower;
    QTimer m_later;
    Activity::Handle m_watching;
};

} // namespace xbr::host
