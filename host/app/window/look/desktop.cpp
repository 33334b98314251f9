#include "host/app/window/look/desktop.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QWidget>

namespace xbr::host {

namespace {

constexpr char kService[] = "org.freedesktop.portal.Desktop";
constexpr char kPath[] = "/org/freedesktop/portal/desktop";
constexpr char kInterface[] = "org.freedesktop.portal.Settings";
constexpr char kGroup[] = "org.freedesktop.appearance";
constexpr char kKey[] = "color-scheme";

} // namespace

DesktopScheme::DesktopScheme(QObject* parent) : QObject(parent) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return;
    }
    // Whoever it comes from: Qt would ask the bus who has a name, and wait for the answer.
    bus.connect(QString(), kPath, kInterface, "SettingChanged", this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    auto call = QDBusMessage::createMethodCall(kService, kPath, kInterface, "Read");
    call.setArguments({kGroup, kKey});
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        const QDBusPendingReply<QDBusVariant> reply = *finished;
        finished->deleteLater();
        if (reply.isValid()) {
            take(reply.value().variant());
        }
    });
}

void DesktopScheme::settingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
    if (group == kGroup && key == kKey) {
        take(value.variant());
    }
}

void DesktopScheme::take(const QVariant& value) {
    static constexpr uint kPrefersDark = 1;
    static constexpr uint kPrefersLight = 2;
    // The portal wraps the value twice.
    const QVariant inner = value.canConvert<QDBusVariant>() ? value.value<QDBusVariant>().variant() : value;
    std::optional<Appearance> wanted;
    if (inner.toUInt() == kPrefersDark) {
        wanted = Appearance::kDark;
    } else if (inner.toUInt() == kPrefersLight) {
        wanted = Appearance::kLight;
    }
    if (wanted != m_appearance) {
        m_appearance = wanted;
        emit changed();
    }
}

void raise(QWidget& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    // A window that is activated while a dialog blocks it passes the keyboard on to the dialog; when that
    // closes in the same moment, nobody has it.
    QWidget* modal = QApplication::activeModalWidget();
    QWidget& front = modal ? *modal : window;
    front.raise();
    front.activateWindow();
    QApplication::alert(&window);
}

} // namespace xbr::host
