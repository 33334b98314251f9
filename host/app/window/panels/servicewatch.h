#pragma once

#include "host/app/modules/gadgetpanel.h"
#include "host/app/publishing/notice.h"
#include "host/app/publishing/reachability.h"
#include "host/app/publishing/settling.h"
#include "host/app/publishing/trackfollower.h"
#include "host/app/session/hostsession.h"
#include "host/base/listener.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <memory>

namespace xbr::host {

/// Watches a panel, and tells the user in plain words what the module keeps silent about: missing settings, a
/// sign-in that failed or has expired, a service that does not answer, an upload that came to nothing.
class ServiceWatch final : public QObject, private Activity::Watcher {
    Q_OBJECT

public:
    /// `tellInDialog` shows a line in the dialog of a module that is open, or takes it away.
    ServiceWatch(GadgetPanel& panel, HostSession& session, std::function<void(const QString&)> tellInDialog,
                 QObject* parent);

    /// The browser came back, and the module was told.
    void callbackArrived();

    /// True while songs are prepared or on their way.
    bool isUploading() const;

signals:
    void noticed(const xbr::host::Notice& notice);

private:
    void clientChanged();
    void tellState(std::int64_t state);
    bool isIdle() const;
    void rested();
    void judgeSignIn();
    void judgeUpload(const std::vector<TrackReport>& tracks, bool wasSent);
    void judgeFailure(const std::vector<TrackReport>& tracks, bool wasSent);
    void follow();
    void trackChanged(const TrackReport& track);
    bool tellExpired();
    void tell(NoticeKind kind, const QString& text);
    void ended(Activity::Kind kind, bool isCancelled) override;

    GadgetPanel* m_panel;
    HostSession* m_session;
    std::function<void(const QString&)> m_tellInDialog;
    Listener m_client;
    Settling m_settling;
    Reachability m_reachability;
    std::unique_ptr<TrackFollower> m_follower; ///< from the preparation of an upload until nothing moves
    std::int64_t m_state;
    bool m_wasSent = false;
    bool m_wasCancelled = false;
    bool m_hasSignInFailed = false;
    std::uint64_t m_refusals; ///< of credentials, as far as the user was told
    Activity::Handle m_watching;
};

} // namespace xbr::host
