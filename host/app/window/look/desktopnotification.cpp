#include "host/app/window/look/desktopnotification.h"

#include "host/app/window/look/desktop.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QEvent>
#include <QVariantMap>
#include <QWidget>

namespace xbr::host {

namespace {

constexpr char kNotifications[] = "org.freedesktop.Notifications";
constexpr char kNotificationsPath[] = "/org/freedesktop/Notifications";

QDBusMessage call(const char* method) {
    return QDBusMessage::createMethodCall(kNotifications, kNotificationsPath, kNotifications, method);
}

} // namespace

DesktopNotification::DesktopNotification(QWidget& window)
    : DesktopNotification(window, &QDBusConnection::sessionBus) {}

DesktopNotification::DesktopNotification(QWidget& window, std::function<QDBusConnection()> bus)
    : m_window(&window),
      m_bus(std::move(bus)) {
    window.installEventFilter(this);
}

void DesktopNotification::show(const QString& title) {
    QDBusConnection bus = m_bus();
    if (!bus.isConnected()) {
        return;
    }
    // Whoever it comes from: Qt would ask the bus who has a name, and wait for the answer.
    bus.connect(QString(), kNotificationsPath, kNotifications, "ActionInvoked", this,
                SLOT(actionInvoked(uint, QString)));
    QDBusMessage message = call("Notify");
    static constexpr int kUsualTime = -1;
    message << "xbrhost" << m_id << "xbrhost" << title << QString() << QStringList{"default", tr("Show")}
            << QVariantMap() << kUsualTime;
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<uint> reply = *watcher;
        m_id = reply.isError() ? 0 : reply.value();
        watcher->deleteLater();
    });
}

void DesktopNotification::actionInvoked(uint id, const QString&) {
    if (id == m_id) {
        raise(*m_window);
    }
}

void DesktopNotification::takeBack() {
    if (m_id != 0) {
        QDBusMessage message = call("CloseNotification");
        message << std::exchange(m_id, 0U);
        m_bus().asyncCall(message);
    }
}

bool DesktopNotification::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        takeBack();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace xbr::host
