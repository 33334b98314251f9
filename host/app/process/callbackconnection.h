#pragma once

#include <QByteArray>
#include <QLocalSocket>
#include <QObject>
#include <QTimer>

#include <functional>
#include <string>

namespace xbr::host {

/// True when the process at the other end belongs to this user.
bool isOwnUser(const QLocalSocket& socket);

/// One connection of the callback server: reads a line, answers it, and is gone. Deletes itself.
class CallbackConnection final : public QObject {
public:
    using Open = std::function<bool(const std::string& url)>;

    /// Takes `socket` over.
    CallbackConnection(QLocalSocket& socket, QObject& parent, Open open);

private:
    void read();
    void answer(const QByteArray& line);
    void drop();

    QLocalSocket* m_socket;
    QTimer m_limit;
    QByteArray m_received;
    Open m_open;
    bool m_isAnswered = false;
};

} // namespace xbr::host
