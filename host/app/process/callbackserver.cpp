#include "host/app/process/callbackserver.h"

#include "framework/abi/filetype.h"
#include "framework/support/objects/text.h"
#include "host/app/process/callbackplace.h"

#include <QFile>
#include <QLocalSocket>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <unistd.h>

namespace xbr::host {

namespace {

constexpr std::size_t kMaximumLineSize = kLinkBack.size() + kMaximumUrlSize;

bool isPrintable(const std::string& url) {
    return !url.empty() && std::all_of(url.begin(), url.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte > 0x20 && byte != 0x7F;
    });
}

/// One connection: reads a line, answers it, and is gone. Deletes itself.
class Connection final : public QObject {
public:
    /// Takes `socket` over. `server` and `host` outlive it.
    Connection(QLocalSocket& socket, QObject& parent, CallbackServer& server, CallbackServer::Host& host);

private:
    void read();
    void answer(const QByteArray& line);
    std::string answerTo(const std::string& line);
    void drop();

    QLocalSocket* m_socket;
    QTimer m_limit;
    QTimer m_later; ///< looks again when the program could not be asked
    QByteArray m_received;
    CallbackServer* m_server;
    CallbackServer::Host* m_host;
    bool m_isAnswered = false;
};

Connection::Connection(QLocalSocket& socket, QObject& parent, CallbackServer& server,
                       CallbackServer::Host& host)
    : QObject(&parent),
      m_socket(&socket),
      m_server(&server),
      m_host(&host) {
    static constexpr int kLookAgain = 20; // milliseconds
    m_later.setSingleShot(true);
    m_later.setInterval(kLookAgain);
    m_later.callOnTimeout([this] { read(); });
    m_socket->setParent(this);
    m_socket->setReadBufferSize(kMaximumLineSize + 2);
    connect(m_socket, &QLocalSocket::readyRead, this, [this] { read(); });
    connect(m_socket, &QLocalSocket::disconnected, this, [this] { deleteLater(); });
    m_limit.setSingleShot(true);
    connect(&m_limit, &QTimer::timeout, this, [this] { drop(); });
    m_limit.start(CallbackServer::kTimeLimit);
}

void Connection::read() {
    if (m_isAnswered) {
        return;
    }
    m_received += m_socket->read(static_cast<qint64>(kMaximumLineSize) + 1 - m_received.size());
    const auto end = m_received.indexOf('\n');
    if (end >= 0 && m_host->isHeld()) {
        m_later.start();
    } else if (end >= 0) {
        answer(m_received.left(end));
    } else if (m_received.size() > static_cast<qsizetype>(kMaximumLineSize)) {
        drop();
    }
}

std::string Connection::answerTo(const std::string& line) {
    const bool isQuestion = line == kWhoWaits;
    const bool isLinkBack = line.starts_with(kLinkBack);
    const auto since = isQuestion || isLinkBack ? m_host->waitsForBrowserSince() : std::nullopt;
    if (isQuestion) {
        return since ? std::string(kWaits) + std::to_string(*since) : std::string(kNotTaken);
    }
    const bool isTaken =
        isLinkBack ? since && m_server->openUrl(line.substr(kLinkBack.size())) : m_server->openUrl(line);
    return std::string(isTaken ? kTaken : kNotTaken);
}

void Connection::answer(const QByteArray& line) {
    m_isAnswered = true;
    const QPointer<Connection> self(this); // opening may end the program's server, and us with it
    const std::string answer = answerTo(line.toStdString());
    if (self) {
        m_socket->write((answer + '\n').c_str());
        m_socket->disconnectFromServer();
    }
}

void Connection::drop() {
    // Not answered: the limits are far from everything that a browser sends.
    m_isAnswered = true;
    m_socket->abort();
    deleteLater();
}

} // namespace

CallbackServer::CallbackServer(Host& host) : m_host(&host) {
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&m_server, &QLocalServer::newConnection, &m_connections, [this] { accept(); });
}

CallbackServer::~CallbackServer() {
    if (m_server.isListening()) {
        m_server.close();
        rmdir(m_folder.c_str()); // stays when another host listens there
    }
}

Outcome<void> CallbackServer::start() {
    // A host that ends at this moment may take the folder away between the two steps.
    return listen() ? Outcome<void>() : listen();
}

Outcome<void> CallbackServer::listen() {
    m_folder = callbackFolder();
    if (auto made = makePrivateFolder(m_folder); !made) {
        return made;
    }
    const QString name = QFile::decodeName((m_folder + "/" + std::to_string(getpid()) + ".sock").c_str());
    if (!m_server.listen(name)) {
        const std::string reason = m_server.errorString().toStdString();
        return Problem{Fault::kNotWritable,
                       m_folder,
                       0,
                       "cannot listen for callbacks in '" + m_folder + "': " + reason,
                       {},
                       {}};
    }
    return {};
}

void CallbackServer::accept() {
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        const bool isWelcome = m_connections.children().size() < kMaximumConnections &&
                               isOwnUser(static_cast<int>(socket->socketDescriptor()));
        if (!isWelcome) {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        new Connection(*socket, m_connections, *this, *m_host);
    }
}

bool CallbackServer::openUrl(const std::string& url) {
    if (!isPrintable(url)) {
        return false;
    }
    const bool isTaken = XBRGetFileTypeRegistry()->openUrl(toText(url));
    m_host->urlCame();
    return isTaken;
}

} // namespace xbr::host
