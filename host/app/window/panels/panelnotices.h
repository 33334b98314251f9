#pragma once

#include "host/app/publishing/publishing.h"
#include "host/app/session/hostsession.h"
#include "host/base/listener.h"

#include <QObject>

#include <cstdint>
#include <functional>

namespace xbr::host {

/// Shows what happens in a panel: the steps of a sign-in and of an upload, and the verdict on them.
class PanelNotices final : public QObject, private PublishingListener {
    Q_OBJECT

public:
    /// `tellInDialog` shows a line in the dialog of a module that is open, or takes it away.
    PanelNotices(GadgetPanel& panel, HostSession& session, std::function<void(const QString&)> tellInDialog,
                 QObject* parent);

    Publishing& publishing() { return m_publishing; }

    /// Signs in with what is stored, if anything is, without a question to the user.
    void restoreSignIn();

    /// The browser came back, and the module was told.
    void callbackArrived();

signals:
    void noticed(const xbr::host::Notice& notice);

private:
    void clientChanged();
    void tellState(ClientState state);
    void preparing(const PreparationProgress& progress) override;
    void sending(const UploadProgress& progress) override;
    void ended(const Verdict& verdict) override;
    void tell(NoticeKind kind, const QString& text);

    GadgetPanel* m_panel;
    const ConfigurationReport* m_settings;
    std::function<void(const QString&)> m_tellInDialog;
    Publishing m_publishing;
    bool m_isRestoring = false;
    ClientState m_state;
    Listener m_client;
};

} // namespace xbr::host
