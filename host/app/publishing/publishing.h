#pragma once

#include "host/app/publishing/history.h"
#include "host/app/publishing/signin/signin.h"
#include "host/app/publishing/upload/follow.h"
#include "host/app/publishing/upload/readiness.h"
#include "host/app/publishing/verdict/notice.h"

#include <QTimer>

#include <memory>
#include <optional>
#include <vector>

namespace xbr::host {

/// Hears what happens. Called from the event loop and from the calls below; must not destroy the Publishing
/// in there.
class PublishingListener {
public:
    virtual ~PublishingListener() = default;

    /// What is about to be sent.
    virtual void tracksKnown(const std::vector<TrackReport>& /*tracks*/) {}

    /// Songs are copied and packed; more than once.
    virtual void preparing(const PreparationProgress& /*progress*/) {}

    /// The user has just signed in, and songs are about to go to that account.
    virtual void signedIn(const Verdict& /*verdict*/, const std::string& /*account*/) {}

    /// Bytes are on their way; four times a second.
    virtual void sending(const UploadProgress& /*progress*/) {}

    /// A track looks different, while an upload runs.
    virtual void trackChanged(const TrackReport& /*track*/) {}

    /// The panel's list may look different, whether an upload runs or not.
    virtual void tracksTouched() {}

    /// Something came to its end: a sign-in, an upload, or what was asked for before anything was sent.
    virtual void ended(const Verdict& verdict) = 0;
};

/// All that a front end asks to get songs through a module's panel to the service, whichever front end it is.
/// One for each panel; hears of uploads that were begun in the panel, too. Main thread.
class Publishing {
public:
    Publishing(Activity& activity, const ConfigurationReport& settings, GadgetPanel& panel,
               PublishingListener& listener);
    Publishing(const Publishing&) = delete;
    Publishing& operator=(const Publishing&) = delete;

    /// What would be handed over of the songs, which belong to those of the wish one to one.
    Plan plan(const PublishEntry& entry, const ReleaseWish& wish, const std::vector<SongFile>& songs) const;

    /// Puts the songs of a plan into the panel; runs the event loop while songs are rendered. The verdict
    /// when that came to nothing.
    std::optional<Verdict> handOver(const PublishEntry& entry, const Plan& plan);

    /// Hands over, signs in, uploads, and tells what came of it. Begins with the next turn of the event loop.
    void publish(const PublishEntry& entry, Plan plan);

    /// Signs in, and tells what came of it.
    void signIn(Expired expired);

    /// Signs in with what is stored, and asks nobody: at the start of a window, or to know.
    void restore();

    /// Songs go to this account only; empty for any.
    void setAccount(std::string name) { m_wantedAccount = std::move(name); }

    /// Signs out, and tells what came of it. Such a verdict says no more than was done.
    void signOut();

    /// The user signs out through the panel, which is about to do it.
    void signOutBegan();

    /// The user signs in through the panel: what comes of it is told.
    void signInBegan();

    /// The user is about to perform "upload" in the panel. Where nothing waits to be sent, that means to send
    /// again what did not arrive.
    void uploadComes();

    /// The user performed "upload" in the panel, which has come back.
    void uploadAsked() { m_follow.asked(); }

    /// True when songs were sent that the service did not take.
    bool canTryAgain();

    /// Sends them again: the list's own "Reset", then "upload".
    void tryAgain();

    /// Ends what runs: a dialog or indicator that is open is closed, what is on its way to the service is
    /// aborted. The verdict comes once the panel has heard of it; what had arrived stays as it is.
    void stop();

    /// Why "upload" can do nothing.
    Hindrance hindrance();

    /// The tracks of the panel, by the user's files. Until the event loop runs again.
    const std::vector<TrackReport>& tracks() { return m_follow.tracks(); }

    /// When a file was published from this computer by the account that songs go to, or by any while that is
    /// not known.
    std::optional<Publication> findPublished(const std::string& path) const;
    std::optional<Publication> findPublishedFingerprint(const std::string& fingerprint) const;

    /// True while songs are handed over, prepared or on their way.
    bool isBusy();

private:
    std::string account() const;
    void begin();
    void judgeUpload(UploadFacts facts);
    void remember(const Verdict& verdict, const UploadFacts& facts);
    void upload();
    template <class Call>
    bool doInPanel(const Call& call);
    void tellStopped();
    void nameServer(Problem& problem) const;
    void end(const Verdict& verdict);

    Activity* m_activity;
    const ConfigurationReport* m_settings;
    GadgetPanel* m_panel;
    PublishingListener* m_listener;
    std::unique_ptr<RenderedSongs> m_rendered; ///< what the panel got last
    PublishEntry m_entry;
    Plan m_plan;
    bool m_isStopped = false;
    std::string m_wantedAccount;
    bool m_isEnded = true; ///< of what `publish` or `signIn` began
    int m_calls = 0;       ///< calls into the module that may run the event loop
    History m_history;
    Follow m_follow;
    SignIn m_signIn;
    QTimer m_start;
};

} // namespace xbr::host
