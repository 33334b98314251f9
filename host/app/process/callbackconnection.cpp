#include "host/app/process/callbackconnection.h"

#include "host/app/process/callbackserver.h"

#include <QPointer>

#include <sys/socket.h>
#include <unistd.h>

namespace xbr::host {

bool isOwnUser(const QLocalSocket& socket) {
    ucred peer{};
    socklen_t size = sizeof(peer);
    const int descriptor = static_cast<int>(socket.socketDescriptor());
    return getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

CallbackConnection::CallbackConnection(QLocalSocket& socket, QObject& parent, Open open)
    : QObject(&parent),
      m_socket(&socket),
      m_open(std::move(open)) {
    m_socket->setParent(this);
    m_socket->setReadBufferSize(CallbackServer::kMaximumUrlSize + 2);
    connect(m_socket, &QLocalSocket::readyRead, this, [this] { read(); });
    connect(m_socket, &QLocalSocket::disconnected, this, [this] { deleteLater(); });
    m_limit.setSingleShot(true);
    connect(&m_limit, &QTimer::timeout, this, [this] { drop(); });
    m_limit.start(CallbackServer::kTimeLimit);
    QMetaObject::invokeMethod(
        this, [this] { read(); }, Qt::QueuedConnection); // what came before we listened
}

void CallbackConnection::read() {
    if (m_isAnswered) {
        return;
    }
    m_received +=
        m_socket->read(static_cast<qint64>(CallbackServer::kMaximumUrlSize) + 1 - m_received.size());
    const auto end = m_received.indexOf('\n');
    if (end >= 0) {
        answer(m_received.left(end));
    } else if (m_received.size() > static_cast<qsizetype>(CallbackServer::kMaximumUrlSize)) {
        drop();
    }
}

void CallbackConnection::answer(const QByteArray& line) {
    m_isAnswered = true;
    const QPointer<CallbackConnection> self(this); // opening may end the program's server, and us with it
    const Open open = m_open;                      // that may take the function away, too
    const bool isTaken = open(line.toStdString());
    if (self) {
        m_socket->write(isTaken ? "ok\n" : "no\n");
        m_socket->disconnectFromServer();
    }
}

void CallbackConnection::drop() {
    // Not answered: the limits are far from everything that a browser sends.
    m_isAnswered = true;
    m_socket->abort();
    deleteLater();
}

} // namespace xbr::host
