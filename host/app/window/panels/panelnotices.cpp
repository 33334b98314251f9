#include "host/app/window/panels/panelnotices.h"

#include "framework/support/objects/message.h"
#include "framework/support/parts/path.h"
#include "host/app/publishing/upload/progresswords.h"
#include "host/app/publishing/words.h"

namespace xbr::host {

PanelNotices::PanelNotices(GadgetPanel& panel, HostSession& session,
                           std::function<void(const QString&)> tellInDialog, QObject* parent)
    : QObject(parent),
      m_panel(&panel),
      m_settings(&session.settings()),
      m_tellInDialog(std::move(tellInDialog)),
      m_publishing(session.activity(), session.settings(), panel, *this),
      m_state(panel.clientState()),
      m_client([this](ISubject*, const IMessage& message) {
          if (isNamed(message, "propertyChanged")) {
              clientChanged();
          }
      }) {
    m_client.listen(findObject<ISubject>(panel.controller(), "Client"));
}

void PanelNotices::tell(NoticeKind kind, const QString& text) {
    emit noticed({kind, text});
}

void PanelNotices::callbackArrived() {
    if (m_panel->clientState() == ClientState::kAwaitingBrowser) {
        m_tellInDialog(QCoreApplication::translate(
            "xbr::host::Words",
            "The browser came back without a permission. Allow the access there, or cancel here."));
    }
}

void PanelNotices::clientChanged() {
    const ClientState state = m_panel->clientState();
    if (state == m_state) {
        return;
    }
    const bool wasConnected = m_state == ClientState::kConnected;
    m_state = state;
    if (state != ClientState::kIdle) {
        m_publishing.signInBegan();
        tellState(state);
    } else if (wasConnected) {
        m_publishing.signOutBegan();
    }
}

void PanelNotices::tellState(ClientState state) {
    const bool isHopeless = m_settings->wasAsked && !m_settings->isComplete();
    if (state == ClientState::kAwaitingBrowser && !isHopeless) {
        m_tellInDialog({});
        tell(NoticeKind::kBusy,
             QCoreApplication::translate("xbr::host::Words", "Waiting for your permission in the browser."));
    } else if (state == ClientState::kRequestingToken) {
        tell(NoticeKind::kBusy, QCoreApplication::translate("xbr::host::Words", "Signing in…"));
    }
}

void PanelNotices::preparing(const PreparationProgress& progress) {
    tell(NoticeKind::kBusy, QString::fromStdString(wordsOf(progress)));
}

void PanelNotices::sending(const UploadProgress& progress) {
    tell(NoticeKind::kBusy, QString::fromStdString(wordsOf(progress).headline));
}

void PanelNotices::restoreSignIn() {
    m_isRestoring = true;
    m_publishing.restore();
}

void PanelNotices::ended(const Verdict& verdict) {
    const bool isRestoring = std::exchange(m_isRestoring, false);
    if (isRestoring && (verdict.code == ExitCode::kNotSignedIn || verdict.cause == Cause::kNotSetUp)) {
        return; // nobody has asked yet
    }
    tell(verdict.kind, QString::fromStdString(verdict.sentence));
}

} // namespace xbr::host
