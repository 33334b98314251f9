#pragma once

#include "auth/oauth2client.h"
#include "client/uploadqueue.h"
#include "framework/abi/view.h"
#include "framework/support/parts/component.h"
#include "release/account.h"
#include "ui/tracks/tracklistcomponent.h"

#include <string_view>

namespace brindlex {

/// The controller of the panel: signs in, shows who is signed in, and starts uploads. Every instance is named
/// "Kestrova_Brindlex_Client".
///
/// Parameters: 100 "open", 101 "upload", 102 "connect", 103 "userName", 104 "userURL". Children: "Client" and
/// "TrackList". Property: "dashboardVisible" (set by the host).
class Manager final : public xbr::Component {
public:
    Manager();
    ~Manager() override;

    /// The first instance that was created while there was none; null when there is none. Publishing and
    /// callback URLs go to it.
    static Manager* current();

    OAuth2Client& client() const { return *m_client; }
    TrackListComponent& trackList() const { return *m_trackList; }

    /// Signs in with stored tokens, or else with the connect dialog and the browser; returns when that is
    /// over.
    void connect();

    bool isDashboardVisible() const { return m_dashboardVisible; }

    xbr::Result setProperty(xbr::Text name, const xbr::Value& value) noexcept override;
    void notify(xbr::ISubject* subject, xbr::IMessage* message) noexcept override;

protected:
    void parameterChanged(xbr::Parameter& parameter) override;

private:
    void runConnectDialog();
    bool isSignInPending() const;
    void closeDialog();
    void clientNotified(const xbr::IMessage& message);
    void onAuthorizationCompleted();
    void onAuthorizationCanceled();
    void requestAccount();
    void onAccountReply(const xbr::IMessage& message, xbr::IWebRequest& request);
    void setUser(xbr::Ref<Account> account);
    void updateUploadEnabled();

    xbr::Ref<OAuth2Client> m_client;
    xbr::Ref<TrackListComponent> m_trackList;
    UploadQueue m_queue;
    xbr::Ref<Account> m_account;
    xbr::IDialog* m_dialog = nullptr; ///< the connect dialog while it runs
    bool m_dashboardVisible = false;
};

} // namespace brindlex
