#include "host/app/window/panels/panelnotices.h"

#include "framework/support/objects/message.h"
#include "framework/support/objects/value.h"
#include "framework/support/parts/path.h"
#include "host/app/publishing/upload/progresswords.h"
#include "host/app/publishing/words.h"

namespace xbr::host {

namespace {

/// Where a panel's client stands (its property "clientState").
enum ClientState : std::int64_t { kNotConnected, kAwaitingCode, kRequestingToken, kConnected, kFailed };

std::int64_t clientStateOf(const GadgetPanel& panel) {
    const auto client = findObject<IPropertySource>(panel.controller(), "Client");
    Value state{};
    return client && client->getProperty(toText("clientState"), &state) == kOk ? integerOf(state) : 0;
}

} // namespace

PanelNotices::PanelNotices(GadgetPanel& panel, HostSession& session,
                           std::function<void(const QString&)> tellInDialog, QObject* parent)
    : QObject(parent),
      m_panel(&panel),
      m_settings(&session.settings()),
      m_tellInDialog(std::move(tellInDialog)),
      m_publishing(session.activity(), session.settings(), panel, *this),
      m_state(clientStateOf(panel)),
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
    if (clientStateOf(*m_panel) == kAwaitingCode) {
        m_tellInDialog(QCoreApplication::translate(
            "xbr::host::Words",
            "The browser came back without a permission. Allow the access there, or cancel here."));
    }
}

void PanelNotices::clientChanged() {
    const std::int64_t state = clientStateOf(*m_panel);
    if (state == m_state) {
        return;
    }
    const bool wasConnected = m_state == kConnected;
    m_state = state;
    if (state != kNotConnected) {
        m_publishing.signInBegan();
        tellState(state);
    } else if (wasConnected) {
        tell(NoticeKind::kInfo, QCoreApplication::translate("xbr::host::Words", "Signed out."));
    }
}

void PanelNotices::tellState(std::int64_t state) {
    const bool isHopeless = m_settings->wasAsked && !m_settings->isComplete();
    if (state == kAwaitingCode && !isHopeless) {
        m_tellInDialog({});
        tell(NoticeKind::kBusy,
             QCoreApplication::translate("xbr::host::Words", "Waiting for your permission in the browser."));
    } else if (state == kRequestingToken) {
        tell(NoticeKind::kBusy, QCoreApplication::translate("xbr::host::Words", "Signing in…"));
    }
}

void PanelNotices::preparing(const PreparationProgress& progress) {
    tell(NoticeKind::kBusy, QString::fromStdString(wordsOf(progress)));
}

void PanelNotices::sending(const UploadProgress& progress) {
    tell(NoticeKind::kBusy, QString::fromStdString(wordsOf(progress).headline));
}

void PanelNotices::ended(const Verdict& verdict) {
    tell(verdict.kind, QString::fromStdString(verdict.sentence));
}

} // namespace xbr::host
