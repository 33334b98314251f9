#include "client/manager.h"

#include "client/configuration.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/modulecomponent.h"
#include "release/genrecatalogue.h"
#include "ui/tracks/trackitem.h"

namespace brindlex {

namespace {

constexpr std::string_view kName = "Kestrova_Brindlex_Client";
constexpr std::string_view kConnectForm = "BrindlexConnectDialog";
constexpr std::int32_t kDialogStyle = xbr::IDialog::kModal | xbr::IDialog::kCloseButton;

enum Tag : std::int32_t { kOpen = 100, kUpload = 101, kConnect = 102, kUserName = 103, kUserUrl = 104 };

Manager* g_current = nullptr;

/// The editor's genre menu is filled from the catalogue when the track list is made.
xbr::Ref<TrackListComponent> makeTrackList() {
    loadGenres();
    return xbr::make<TrackListComponent>();
}

} // namespace

Manager::Manager()
    : Component(kName),
      m_client(xbr::make<OAuth2Client>()),
      m_trackList(makeTrackList()),
      m_queue(*m_client, *m_trackList, *this) {
    if (!g_current) {
        g_current = this;
    }
    m_client->setCredentialName(std::string(kName));
    addChild(m_client);
    XBRGetSignalHandler()->addObserver(m_trackList.get(), this);
    addChild(m_trackList);
    addParameter(xbr::ParameterKind::kCommand, kUpload, "upload");
    addParameter(xbr::ParameterKind::kCommand, kConnect, "connect");
    addParameter(xbr::ParameterKind::kText, kUserName, "userName");
    addParameter(xbr::ParameterKind::kText, kUserUrl, "userURL");
    addParameter(xbr::ParameterKind::kPlain, kOpen, "open");
    updateUploadEnabled();
    XBRGetSignalHandler()->addObserver(m_client.get(), this);
}

Manager::~Manager() {
    // A view may hold the client longer than we live; its handlers are ours.
    m_client->cancel();
    if (g_current == this) {
        g_current = nullptr;
    }
}

Manager* Manager::current() {
    return g_current;
}

void Manager::connect() {
    if (m_client->isAuthorized() || m_client->isBusy()) {
        return;
    }
    const auto self = xbr::Ref<Manager>::share(this);
    if (m_client->configuration().consumerKey.empty()) {
        loadConfiguration(*m_client); // once for each client
    }
    if (!m_client->restoreAuthorization()) {
        runConnectDialog();
    }
}

void Manager::runConnectDialog() {
    auto* module = xbr::ModuleComponent::current();
    xbr::Ref<xbr::IView> view;
    if (!module || !module->theme() ||
        module->theme()->createView(xbr::toText(kConnectForm), this, view.out()) != xbr::kOk) {
        return;
    }
    const auto dialog = xbr::createHostObject<xbr::IDialog>();
    if (!dialog) {
        return;
    }
    dialog->setTheme(module->theme().get());
    dialog->setTranslationTable(module->translations().get());
    xbr::IDialog* previous = std::exchange(m_dialog, dialog.get());
    if (m_client->state() != ClientState::kIdle) {
        m_client->resetAuthorization(Silence::kSilent);
    }
    m_client->getAuthorizationCode();
    dialog->runModal(view.get(), kDialogStyle);
    m_dialog = previous;
    if (!isSignInPending()) {
        closeDialog(); // one that was open before asks for the same sign-in
    }
}

bool Manager::isSignInPending() const {
    return m_client->state() == ClientState::kAwaitingCode ||
           m_client->state() == ClientState::kRequestingToken;
}

void Manager::closeDialog() {
    if (m_dialog) {
        m_dialog->close();
    }
}

void Manager::onAuthorizationCompleted() {
    closeDialog();
    requestAccount();
}

void Manager::requestAccount() {
    m_client->sendAuthorizedQuery(
        [this](const auto& message, auto& request) { onAccountReply(message, request); }, kAccountPath);
}

void Manager::onAuthorizationCanceled() {
    closeDialog();
    setUser(nullptr);
}

void Manager::onAccountReply(const xbr::IMessage& message, xbr::IWebRequest& request) {
    const auto self = xbr::Ref<Manager>::share(this); // an observer of what is set here may drop the panel
    if (!xbr::isNamed(message, "onloadend")) {
        return;
    }
    if (xbr::isSuccess(request)) {
        xbr::Ref<xbr::IStream> body;
        const bool hasBody = request.getResponseBody(body.out()) == xbr::kOk;
        setUser(hasBody ? parseAccountReply(*body) : nullptr);
    }
    if (xbr::isUnauthorized(request)) {
        xbr::post(*this, "refreshAccessToken");
    }
}

void Manager::setUser(xbr::Ref<Account> account) {
    m_account = std::move(account);
    const std::string userUrl = m_account ? m_client->configuration().userUrl.toString() : std::string();
    parameter(kUserName)->set(xbr::textValue(m_account ? m_account->name : std::string()));
    parameter(kUserUrl)->set(xbr::textValue(userUrl));
}

void Manager::updateUploadEnabled() {
    const bool hasTracks = countTracks(m_trackList->model()) > 0;
    parameter(kUpload)->setEnabled(m_client->isReady() && hasTracks && m_trackList->editor().isReady());
}

xbr::Result Manager::setProperty(xbr::Text name, const xbr::Value& value) noexcept {
    if (xbr::view(name) == "dashboardVisible") {
        // Truncated on purpose: hosts send the fraction of the dashboard that is in sight, and half is not
        // yet visible. The host's own handling of the property goes on, so it is not reported as handled.
        const bool isNumber = value.kind == xbr::ValueKind::kInteger || value.kind == xbr::ValueKind::kFloat;
        m_dashboardVisible = isNumber && xbr::integerOf(value) != 0;
        return xbr::kFalse;
    }
    return Component::setProperty(name, value);
}

void Manager::notify(xbr::ISubject* subject, xbr::IMessage* message) noexcept {
    const auto self = xbr::Ref<Manager>::share(this);
    if (subject == m_client.get()) {
        clientNotified(*message);
    } else if (subject == m_trackList.get()) {
        if (xbr::isNamed(*message, "changed")) {
            updateUploadEnabled();
        }
    } else if (xbr::isNamed(*message, "uploadNext")) {
        m_queue.startUpload();
    }
    // "refreshAccessToken" has no answer: the service offers no refresh, a new sign-in is the host's to
    // suggest.
}

void Manager::clientNotified(const xbr::IMessage& message) {
    if (xbr::isNamed(message, "propertyChanged")) {
        updateUploadEnabled();
    } else if (xbr::isNamed(message, "authorizationCompleted")) {
        onAuthorizationCompleted();
    } else if (xbr::isNamed(message, "authorizationCanceled")) {
        onAuthorizationCanceled();
    }
}

void Manager::parameterChanged(xbr::Parameter& parameter) {
    const auto self = xbr::Ref<Manager>::share(this);
    switch (parameter.tag()) {
    case kUpload:
        m_queue.restart();
        break;
    case kConnect:
        connect();
        break;
    default:
        break;
    }
}

} // namespace brindlex
