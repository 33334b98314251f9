#pragma once

#include "host/app/modules/gadgetpanel.h"
#include "host/app/publishing/missinginformation.h"
#include "host/app/publishing/publishresult.h"
#include "host/app/publishing/releaseintake.h"
#include "host/app/publishing/signin.h"
#include "host/app/publishing/trackfollower.h"
#include "host/app/session/activity.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace xbr::host {

struct PublishOutcome {
    PublishResult result = PublishResult::kDone;
    std::string detail;                      ///< one line in plain words; may be empty
    std::vector<TrackReport> tracks;         ///< as they are at the end
    std::vector<IncompleteTrack> incomplete; ///< tracks that were not taken and lack information
};

/// Hears what a session does. Called from the event loop; must not destroy the session in there.
class PublishListener {
public:
    virtual ~PublishListener() = default;

    /// Once, before anything is sent: what will be.
    virtual void tracksKnown(const std::vector<TrackReport>& tracks) = 0;

    virtual void trackChanged(const TrackReport& track) = 0;

    /// Last of all, once.
    virtual void finished(const PublishOutcome& outcome) = 0;
};

/// Publishes a release through a module: hands the songs to the publish entry, signs the user in, performs
/// "upload" and follows the tracks until nothing moves any more. One-shot. Main thread.
class PublishSession {
public:
    PublishSession(GadgetPanel& panel, const ConfigurationReport& report, const Activity& activity,
                   PublishListener& listener);
    PublishSession(const PublishSession&) = delete;
    PublishSession& operator=(const PublishSession&) = delete;

    /// Begins with the next turn of the event loop.
    void start(ReleaseWish plan);

    /// Ends the session early: it finishes with kCancelled as soon as the dialog or the indicator that is
    /// open has been closed by the front end. What is on its way to the service is given up when the panel
    /// goes.
    void cancel();

private:
    void publish();
    bool takeSongs();
    void follow();
    TrackReport named(TrackReport report) const;
    void signIn();
    void signedIn(SignInResult result, const std::string& detail);
    void upload();
    bool isIdle() const;
    void rested();
    void tellFailure(PublishResult result);
    void finish(PublishResult result, const std::string& detail = {});

    GadgetPanel* m_panel;
    const ConfigurationReport* m_report;
    const Activity* m_activity;
    PublishListener* m_listener;
    ReleaseWish m_plan;
    ReleaseIntake m_intake;
    bool m_isCancelled = false;
    bool m_isFinished = false;
    int m_calls = 0;              ///< calls into the panel that may run the event loop
    std::uint64_t m_refusals = 0; ///< of credentials, before the upload
    std::unique_ptr<TrackFollower> m_follower;
    SignIn m_signIn;
    Settling m_settling;
    Reachability m_reachability;
    QTimer m_start;
};

} // namespace xbr::host
