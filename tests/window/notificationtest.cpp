// The desktop's notification, with a bus and a desktop of the test's own.

#include "host/app/window/look/desktopnotification.h"
#include "tests/window/person.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QWidget>
#include <gtest/gtest.h>

namespace xbr::host::tests {

constexpr char kNotifications[] = "org.freedesktop.Notifications";
constexpr char kPath[] = "/org/freedesktop/Notifications";

/// What a desktop offers to those who have something to say.
class Desktop final : public QDBusVirtualObject {
public:
    QStringList heard;

    QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        static constexpr uint kNumber = 7;
        QStringList said{message.member()};
        for (const QVariant& argument : message.arguments()) {
            said.append(argument.typeId() == QMetaType::QStringList ? argument.toStringList().join(',')
                                                                    : argument.toString());
        }
        heard.append(said.join('|'));
        return bus.send(message.createReply(kNumber));
    }
};

TEST(DesktopNotification, isReplacedTakenBackAndBringsTheWindowToTheFront) {
    QProcess daemon;
    daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    ASSERT_TRUE(daemon.waitForReadyRead());
    const QString address = QString::fromUtf8(daemon.readLine()).trimmed();
    QDBusConnection served = QDBusConnection::connectToBus(address, "desktop");
    const QDBusConnection bus = QDBusConnection::connectToBus(address, "program");
    Desktop desktop;
    ASSERT_TRUE(served.registerVirtualObject(kPath, &desktop));
    ASSERT_TRUE(served.registerService(kNotifications));
    const auto click = [&served](uint number) {
        QDBusMessage clicked = QDBusMessage::createSignal(kPath, kNotifications, "ActionInvoked");
        clicked << number << "default";
        served.send(clicked);
    };

    QWidget window;
    DesktopNotification notification(window, [&bus] { return bus; });
    const auto hears = [&desktop](const QString& what) {
        return waitFor([&] { return desktop.heard.contains(what); });
    };
    notification.show("Published “Harbour”.");
    EXPECT_TRUE(hears("Notify|xbrhost|0|xbrhost|Published “Harbour”.||default,Show||-1"));
    waitFor([] { return false; }, 100); // the answer comes
    notification.show("Published 2 songs as singles.");
    EXPECT_TRUE(hears("Notify|xbrhost|7|xbrhost|Published 2 songs as singles.||default,Show||-1"));

    click(8);
    waitFor([] { return false; }, 100);
    EXPECT_FALSE(window.isVisible()) << "another program's";
    click(7);
    EXPECT_TRUE(waitFor([&] { return window.isVisible(); }));
    EXPECT_TRUE(hears("CloseNotification|7")) << "the window is seen";

    QDBusConnection::disconnectFromBus("desktop");
    QDBusConnection::disconnectFromBus("program");
    daemon.terminate();
    daemon.waitForFinished();
}

} // namespace xbr::host::tests
