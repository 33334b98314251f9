#pragma once

#include "host/app/core/activity.h"
#include "host/app/core/gadgetpanel.h"
#include "host/app/core/missinginformation.h"
#include "host/app/core/publisheditem.h"
#include "host/app/core/signin.h"
#include "host/app/core/trackfollower.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace xbr::host {

enum class PublishResult : std::uint8_t {
    kDone,               ///< every track was taken
    kNotAllDone,         ///< some track was refused, or could not be prepared
    kFileProblem,        ///< `detail` names the file and what is wrong
    kNoPublisher,        ///< `detail` tells what the module lacks
    kNotConfigured,      ///< the configuration report tells what is missing
    kNotSignedIn,        ///< sign-in failed or was given up
    kUnreachable,        ///< `detail` tells why
    kInformationMissing, ///< nothing was taken; `incomplete` tells what is missing
    kCancelled,          ///< by `cancel`
};

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

enum class ReleaseMode : std::uint8_t {
    kSingles, ///< each track is a release of its own
    kAlbum,   ///< all tracks are one release
};

/// Publishes files through a module's publish entry: hands them to the publisher, signs the user in, performs
/// "upload" and follows the tracks until nothing moves any more. One-shot. Main thread.
class PublishSession {
public:
    PublishSession(GadgetPanel& panel, const ConfigurationReport& report, const Activity& activity,
                   PublishListener& listener);
    PublishSession(const PublishSession&) = delete;
    PublishSession& operator=(const PublishSession&) = delete;

    /// Begins with the next turn of the event loop. Paths are relative to the working folder, as bytes.
    void start(std::vector<std::string> files, ReleaseMode mode);

    /// Ends the session early: it finishes with kCancelled as soon as the dialog or the indicator that is
    /// open has been closed by the front end. What is on its way to the service is given up when the panel
    /// goes.
    void cancel();

private:
    void publish();
    bool collect(PublishedItems& items);
    bool isAccepted(IPublisher& publisher, const std::string& file);
    void signIn();
    void signedIn(SignInResult result, const std::string& detail);
    void upload();
    bool isIdle() const;
    void rested();
    void finish(PublishResult result, const std::string& detail = {});

    GadgetPanel* m_panel;
    const ConfigurationReport* m_report;
    const Activity* m_activity;
    PublishListener* m_listener;
    std::vector<std::string> m_files;
    ReleaseMode m_mode = ReleaseMode::kSingles;
    bool m_isCancelled = false;
    bool m_isFinished = false;
    int m_calls = 0; ///< calls into the panel that may run the event loop
    std::unique_ptr<TrackFollower> m_follower;
    SignIn m_signIn;
    Settling m_settling;
    Reachability m_reachability;
    QTimer m_start;
};

} // namespace xbr::host
