#pragma once

#include "auth/oauth2tokens.h"
#include "auth/serviceconfiguration.h"
#include "auth/servicerequest.h"
#include "framework/support/data/formencoding.h"
#include "framework/support/parts/xhrclient.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace brindlex {

/// Where the sign-in stands; the numbers are what forms see as "clientState".
enum class ClientState : std::int32_t {
    kIdle = 0,            ///< not authorized, nothing pending
    kAwaitingCode = 1,    ///< the browser is open; its way back is awaited
    kRequestingToken = 2, ///< the token request is in flight
    kAuthorized = 3,      ///< an access token is held
    kFailed = 4,          ///< the exchange failed; passes on to kIdle with the next turn of the event loop
};

/// Whether a reset tells the observers ("authorizationCanceled").
enum class Silence { kSilent, kTold };

/// Signs the user in through the web browser (authorization code grant, RFC 6749 section 4.1) and sends
/// requests with the access token as Bearer credentials (RFC 6750). A component named "Client".
///
/// Parameters: 100 "getAuthorizationCode", 101 "resetAuthorization", 102 "retryAuthorization", which act when
/// they are set, and 103 "isAuthorized". Properties: "clientState", "isAuthorized", "isBusy".
///
/// Messages: "propertyChanged" is signalled with every change of the state; "authorizationCompleted" and
/// "authorizationCanceled" are posted, so that observers find the work done.
class OAuth2Client final : public xbr::XHRClient {
public:
    OAuth2Client();

    const ServiceConfiguration& configuration() const { return m_configuration; }
    void setConfiguration(ServiceConfiguration configuration) { m_configuration = std::move(configuration); }

    /// Target name of the stored credential.
    void setCredentialName(std::string name) { m_credentialName = std::move(name); }

    ClientState state() const { return m_state; }
    bool isAuthorized() const { return m_state == ClientState::kAuthorized; }

    /// Authorized, and no request in flight.
    bool isReady() const { return isAuthorized() && !isBusy(); }

    /// Opens the service's authorization page in the browser. Only in state kIdle and not busy; true when the
    /// system shell accepted the URL. The state is kAwaitingCode then, also when it did not.
    bool getAuthorizationCode();

    /// Takes the URL that the browser came back with. Only in state kAwaitingCode and not busy; true when a
    /// token request was sent. A redirect without a code changes nothing.
    bool handleRedirect(const xbr::Url& url);

    /// Forgets the authorization, here and in the credential store, and ends a request in flight.
    void resetAuthorization(Silence silence);

    /// Starts again from the beginning, whatever the state.
    void retryAuthorization();

    /// Becomes authorized with stored tokens, without asking the server. Not when authorized already or busy;
    /// true when it did.
    bool restoreAuthorization();

    /// Posts a request with the access token. Only when authorized and not busy; true when it was sent. The
    /// handler gets its messages, a 401 like any other answer.
    bool sendAuthorizedRequest(Handler handler, const ServiceRequest& request);

    /// The same for "GET" without a body.
    bool sendAuthorizedQuery(Handler handler, std::string_view path);

    xbr::Result getProperty(xbr::Text name, xbr::Value* out) noexcept override;
    void notify(xbr::ISubject* subject, xbr::IMessage* message) noexcept override;

protected:
    void parameterChanged(xbr::Parameter& parameter) override;

private:
    bool requestToken(std::string_view code);
    bool postForm(std::string_view path, const xbr::Pairs& form, Handler handler);
    void onTokenReply(const xbr::IMessage& message, xbr::IWebRequest& request);
    bool readTokenReply(xbr::IWebRequest& request);
    void exchangeFailed();
    void becomeAuthorized(xbr::Ref<xbr::IWebCredentials> credentials);
    void setState(ClientState state);
    xbr::Url serviceUrl(std::string_view path) const;

    ServiceConfiguration m_configuration;
    std::string m_credentialName;
    ClientState m_state = ClientState::kIdle;
    OAuth2Tokens m_tokens;
    std::uint32_t m_attempt = 0; ///< counts sign-ins, so that a late "onabort" of an older one is told apart
};

} // namespace brindlex
