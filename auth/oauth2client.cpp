#include "auth/oauth2client.h"

#include "auth/authorizationgrant.h"
#include "auth/tokenstore.h"
#include "framework/abi/hostclasses.h"
#include "framework/abi/system.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"

namespace brindlex {

namespace {

enum Tag : std::int32_t {
    kGetAuthorizationCode = 100,
    kResetAuthorization = 101,
    kRetryAuthorization = 102,
    kIsAuthorized = 103,
};

JoinToken mayJoinTokenBeSent() {
    const auto permission = xbr::createHostObject<xbr::IJoinTokenPermission>();
    return permission && permission->isAllowed() ? JoinToken::kSend : JoinToken::kWithhold;
}

/// What requests carry; null when no header can carry the token.
xbr::Ref<xbr::IWebCredentials> makeCredentials(const std::string& token) {
    xbr::Ref<xbr::IWebCredentials> credentials;
    const bool isMade =
        XBRGetWebService()->createCredentials(credentials.out()) == xbr::kOk &&
        credentials->set(xbr::toText(""), xbr::toText(token), xbr::toText("Bearer")) == xbr::kOk;
    return isMade ? credentials : xbr::Ref<xbr::IWebCredentials>();
}

} // namespace

OAuth2Client::OAuth2Client() : XHRClient("Client") {
    addParameter(xbr::ParameterKind::kPlain, kGetAuthorizationCode, "getAuthorizationCode");
    addParameter(xbr::ParameterKind::kPlain, kResetAuthorization, "resetAuthorization");
    addParameter(xbr::ParameterKind::kPlain, kRetryAuthorization, "retryAuthorization");
    addParameter(xbr::ParameterKind::kPlain, kIsAuthorized, "isAuthorized").set(xbr::boolValue(false));
}

xbr::Url OAuth2Client::serviceUrl(std::string_view path) const {
    xbr::Url url = m_configuration.serverUrl;
    url.appendPath(path);
    return url;
}

bool OAuth2Client::getAuthorizationCode() {
    if (m_state != ClientState::kIdle || isBusy()) {
        return false;
    }
    const auto self = xbr::Ref<OAuth2Client>::share(this);
    setState(ClientState::kAwaitingCode);
    if (m_state != ClientState::kAwaitingCode) {
        return false; // an observer of the change reset it
    }
    const std::string url = authorizationUrl(m_configuration, mayJoinTokenBeSent()).toString();
    return XBRGetSystemShell()->openUrl(xbr::toText(url)) == xbr::kOk;
}

bool OAuth2Client::handleRedirect(const xbr::Url& url) {
    if (m_state != ClientState::kAwaitingCode || isBusy()) {
        return false;
    }
    const Redirect redirect = readRedirect(url);
    if (!redirect.code.empty()) {
        return requestToken(redirect.code);
    }
    // The state stays: users who denied by mistake go back in the browser and allow, and that second redirect
    // must still find us waiting. Who gives up has "Cancel" and "Retry".
    const std::string warning = "Authorization error: " + redirect.errorDescription + "\n";
    XBRGetSystem()->writeDebugWarning(xbr::toText(warning));
    return false;
}

bool OAuth2Client::requestToken(std::string_view code) {
    const auto self = xbr::Ref<OAuth2Client>::share(this);
    const xbr::Pairs form = tokenForm(m_configuration, code);
    const auto attempt = ++m_attempt;
    setState(ClientState::kRequestingToken);
    const auto isCurrent = [this, attempt] {
        return attempt == m_attempt && m_state == ClientState::kRequestingToken;
    };
    if (!isCurrent()) {
        return false; // an observer of the change reset it
    }
    const auto onReply = [this, isCurrent](const auto& message, auto& request) {
        if (isCurrent()) {
            onTokenReply(message, request);
        }
    };
    if (!postForm("oauth/token", form, onReply)) {
        exchangeFailed();
        return false;
    }
    return true;
}

bool OAuth2Client::postForm(std::string_view path, const xbr::Pairs& form, Handler handler) {
    const auto body = xbr::make<xbr::MemoryStream>();
    body->write(xbr::formEncode(form));
    xbr::rewind(*body);
    return send(std::move(handler), "POST", serviceUrl(path), body, "application/x-www-form-urlencoded");
}

void OAuth2Client::onTokenReply(const xbr::IMessage& message, xbr::IWebRequest& request) {
    const bool finished = xbr::isNamed(message, "onloadend");
    if (!finished && !xbr::isNamed(message, "onabort")) {
        return;
    }
    const auto self = xbr::Ref<OAuth2Client>::share(this);
    // A token that no header can carry is no sign-in: every request would go out without it.
    auto credentials = finished && readTokenReply(request) ? makeCredentials(m_tokens.accessToken)
                                                           : xbr::Ref<xbr::IWebCredentials>();
    if (!credentials) {
        exchangeFailed();
        return;
    }
    becomeAuthorized(std::move(credentials));
    // A reply without an access token signs in all the same, with nothing stored: the service answers so for
    // accounts that wait for confirmation, and the panel must show them as connected.
    if (!m_tokens.accessToken.empty()) {
        storeTokens(m_tokens, m_credentialName);
    }
}

void OAuth2Client::exchangeFailed() {
    setState(ClientState::kFailed);
    xbr::post(*this, "authorizationLost");
}

bool OAuth2Client::readTokenReply(xbr::IWebRequest& request) {
    xbr::Ref<xbr::IStream> body;
    return xbr::isSuccess(request) && request.getResponseBody(body.out()) == xbr::kOk &&
           parseTokenReply(m_tokens, *body, XBRGetSystem()->currentTime());
}

void OAuth2Client::becomeAuthorized(xbr::Ref<xbr::IWebCredentials> credentials) {
    setState(ClientState::kAuthorized);
    if (m_state != ClientState::kAuthorized) {
        return; // an observer of the change reset it
    }
    setCredentials(std::move(credentials));
    xbr::postSignal(*this, "authorizationCompleted");
}

void OAuth2Client::resetAuthorization(Silence silence) {
    const auto self = xbr::Ref<OAuth2Client>::share(this);
    abort();
    setState(ClientState::kIdle);
    setCredentials(nullptr);
    removeTokens(m_credentialName);
    m_tokens = {};
    if (silence == Silence::kTold) {
        xbr::postSignal(*this, "authorizationCanceled");
    }
}

void OAuth2Client::retryAuthorization() {
    const auto self = xbr::Ref<OAuth2Client>::share(this);
    resetAuthorization(Silence::kSilent);
    getAuthorizationCode();
}

bool OAuth2Client::restoreAuthorization() {
    if (isAuthorized() || isBusy()) {
        return false;
    }
    const auto self = xbr::Ref<OAuth2Client>::share(this);
    OAuth2Tokens tokens = m_tokens;
    auto credentials = loadTokens(tokens, m_credentialName) ? makeCredentials(tokens.accessToken)
                                                            : xbr::Ref<xbr::IWebCredentials>();
    if (!credentials) {
        return false;
    }
    m_tokens = std::move(tokens);
    becomeAuthorized(std::move(credentials));
    return isAuthorized();
}

bool OAuth2Client::sendAuthorizedRequest(Handler handler, const ServiceRequest& request) {
    return isReady() &&
           send(std::move(handler), "POST", serviceUrl(request.path), request.body, request.contentType);
}

bool OAuth2Client::sendAuthorizedQuery(Handler handler, std::string_view path) {
    return isReady() && send(std::move(handler), "GET", serviceUrl(path), nullptr, "");
}

void OAuth2Client::setState(ClientState state) {
    m_state = state;
    parameter(kIsAuthorized)->set(xbr::boolValue(isAuthorized()), xbr::Notify::kNobody);
    xbr::signal(*this, "propertyChanged");
}

xbr::Result OAuth2Client::getProperty(xbr::Text name, xbr::Value* out) noexcept {
    if (xbr::view(name) == "clientState") {
        *out = xbr::integerValue(static_cast<std::int64_t>(m_state));
        return xbr::kOk;
    }
    if (xbr::view(name) == "isAuthorized") {
        *out = xbr::boolValue(isAuthorized());
        return xbr::kOk;
    }
    return XHRClient::getProperty(name, out);
}

void OAuth2Client::notify(xbr::ISubject*, xbr::IMessage* message) noexcept {
    // A newer sign-in that began before this message arrived is not lost with the old one.
    if (xbr::isNamed(*message, "authorizationLost") && m_state == ClientState::kFailed) {
        resetAuthorization(Silence::kTold);
    }
}

void OAuth2Client::parameterChanged(xbr::Parameter& parameter) {
    switch (parameter.tag()) {
    case kGetAuthorizationCode:
        getAuthorizationCode();
        break;
    case kResetAuthorization:
        resetAuthorization(Silence::kTold);
        break;
    case kRetryAuthorization:
        retryAuthorization();
        break;
    default: // "isAuthorized" only shows
        parameter.set(xbr::boolValue(isAuthorized()), xbr::Notify::kNobody);
        break;
    }
}

} // namespace brindlex
