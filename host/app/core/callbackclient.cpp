#include "host/app/core/callbackclient.h"

#include "host/app/core/callbackserver.h"
#include "host/app/core/privatefolder.h"

#include <QFile>
#include <QLocalSocket>

#include <filesystem>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;

constexpr int kConnectLimit = 1000; ///< milliseconds
constexpr int kAnswerLimit = 3000;  ///< milliseconds

bool handOver(const fs::path& path, const std::string& line) {
    QLocalSocket socket;
    socket.connectToServer(QFile::decodeName(path.c_str()));
    if (!socket.waitForConnected(kConnectLimit)) {
        if (socket.error() == QLocalSocket::ConnectionRefusedError) { // nobody listens any more
            std::error_code ignored;
            fs::remove(path, ignored);
        }
        return false;
    }
    socket.write(line.data(), static_cast<qint64>(line.size()));
    while (!socket.canReadLine() && socket.waitForReadyRead(kAnswerLimit)) {
    }
    return socket.readLine() == "ok\n";
}

} // namespace

HandOver handOverUrl(const std::string& url) {
    if (url.size() > CallbackServer::kMaximumUrlSize || url.find('\n') != std::string::npos) {
        return HandOver::kTooLong;
    }
    std::string error;
    const std::string folder = callbackFolder();
    std::error_code ignored;
    if (!fs::exists(folder, ignored) || !makePrivateFolder(folder, error)) {
        return HandOver::kNoHost;
    }
    bool isTaken = false;
    for (const auto& entry : fs::directory_iterator(folder, ignored)) {
        if (entry.is_socket(ignored) && entry.path().extension() == ".sock") {
            isTaken = handOver(entry.path(), url + "\n") || isTaken;
        }
    }
    return isTaken ? HandOver::kTaken : HandOver::kNoHost;
}

} // namespace xbr::host
