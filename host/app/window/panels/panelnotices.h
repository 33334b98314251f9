#pragma once

#include "host/app/window/dialogs/dialogplace.h"
#include "host/app/window/look/notice.h"
#include "host/app/window/panels/panelmemory.h"
#include "host/base/listener.h"

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <set>

namespace xbr::host {

/// Shows what happens in a panel: the steps of a sign-in and of an upload, the verdict on them, and what can
/// be done about it. Asks before something is lost by an upload.
class PanelNotices final : public QObject, private PublishingListener {
    Q_OBJECT

public:
    /// `tellInDialog` shows a line in the dialog of a module that is open, or takes it away.
    PanelNotices(GadgetPanel& panel, DialogPlace& place, std::function<void(const QString&)> tellInDialog,
                 QObject* parent);

    Publishing& publishing() { return m_publishing; }
    PanelMemory& memory() { return m_memory; }

    /// Signs in with what is stored, if anything is, without a question to the user.
    void restoreSignIn();

    /// The browser came back, and the module was told.
    void callbackArrived();

    /// The user is about to perform "upload"; false when that is better not done.
    bool uploadComes();

    /// What would be lost by quitting while an upload runs.
    QString wordsOfLoss();

    /// "Published {date} as {account}" of a song that was published; empty for others.
    QString wordsOfPublication(const std::string& fingerprint) const;

    void stop() { m_publishing.stop(); }

    /// Sends again what did not arrive.
    void tryAgain();

signals:
    void noticed(const xbr::host::Notice& notice);
    void progressed(const xbr::host::UploadProgress& progress);

    /// What was said before is no longer true.
    void began();

    /// An upload has ended, after so many seconds.
    void uploadEnded(const xbr::host::Notice& notice, qint64 seconds);

    /// The user is to look at a track, and at a field of its editor where one is named.
    void showAsked(int row, const QString& parameter);

    /// The list, or what can be done with it, may be another.
    void touched();

private:
    void clientChanged();
    void tellState(ClientState state);
    void preparing(const PreparationProgress& progress) override;
    void sending(const UploadProgress& progress) override;
    void tracksTouched() override { m_later.start(); }
    void ended(const Verdict& verdict) override;
    void tell(NoticeKind kind, const QString& text);
    bool askAboutMissing();
    bool askAboutPublished();
    std::vector<NoticeStep> stepsFor(const Verdict& verdict);
    NoticeStep stepTo(int row, const QString& parameter);

    GadgetPanel* m_panel;
    DialogPlace* m_place;
    const ConfigurationReport* m_settings;
    std::function<void(const QString&)> m_tellInDialog;
    Publishing m_publishing;
    PanelMemory m_memory;
    bool m_isRestoring = false;
    ClientState m_state;
    std::set<std::string> m_wantedAgain; ///< files that the user publishes once more
    bool m_isUploading = false;
    QElapsedTimer m_since;
    QTimer m_later;
    Listener m_client;
};

} // namespace xbr::host
