#include "host/app/process/callbackserver.h"

#include "framework/abi/filetype.h"
#include "framework/support/objects/text.h"
#include "host/app/process/callbackconnection.h"
#include "host/app/process/privatefolder.h"

#include <QFile>

#include <algorithm>
#include <unistd.h>

namespace xbr::host {

namespace {

bool isPrintable(const std::string& url) {
    return !url.empty() && std::all_of(url.begin(), url.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte > 0x20 && byte != 0x7F;
    });
}

} // namespace

CallbackServer::CallbackServer() {
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&m_server, &QLocalServer::newConnection, &m_connections, [this] { accept(); });
}

CallbackServer::~CallbackServer() {
    if (m_server.isListening()) {
        m_server.close();
        rmdir(m_folder.c_str()); // stays when another host listens there
    }
}

bool CallbackServer::start(std::string& error) {
    // A host that ends at this moment may take the folder away between the two steps.
    return listen(error) || listen(error);
}

bool CallbackServer::listen(std::string& error) {
    m_folder = callbackFolder();
    if (!makePrivateFolder(m_folder, error)) {
        return false;
    }
    const QString name = QFile::decodeName((m_folder + "/" + std::to_string(getpid()) + ".sock").c_str());
    QLocalServer::removeServer(name); // of a process that had our number and crashed
    if (!m_server.listen(name)) {
        error = "cannot listen for callbacks in '" + m_folder + "': " + m_server.errorString().toStdString();
        return false;
    }
    return true;
}

void CallbackServer::accept() {
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        const bool isWelcome = m_connections.children().size() < kMaximumConnections && isOwnUser(*socket);
        if (!isWelcome) {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        new CallbackConnection(*socket, m_connections,
                               [this](const std::string& url) { return openUrl(url); });
    }
}

bool CallbackServer::openUrl(const std::string& url) {
    if (!isPrintable(url)) {
        return false;
    }
    const bool isTaken = XBRGetFileTypeRegistry()->openUrl(toText(url));
    const auto listener = m_listener; // a copy: it may be replaced while it runs
    if (listener) {
        listener();
    }
    return isTaken;
}

} // namespace xbr::host
