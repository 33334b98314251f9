#pragma once

#include <QObject>
#include <QString>

#include <functional>

class QDBusConnection;

namespace xbr::host {

/// One notification of the desktop; taken back when its window comes to the front.
class DesktopNotification final : public QObject {
    Q_OBJECT

public:
    explicit DesktopNotification(QWidget& window);

    /// `bus` is asked when there is something to show; otherwise the desktop's.
    DesktopNotification(QWidget& window, std::function<QDBusConnection()> bus);

    /// Shows it, where the desktop has such a thing. A click brings the window to the front.
    void show(const QString& title);

    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void actionInvoked(uint id, const QString& action);

private:
    void takeBack();

    QWidget* m_window;
    std::function<QDBusConnection()> m_bus;
    uint m_id = 0; ///< 0: none is shown
};

} // namespace xbr::host
