#include "host/app/process/callbackclient.h"

#include "host/app/process/callbackplace.h"

#include <QFile>
#include <QLocalSocket>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <thread>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;

constexpr int kConnectLimit = 1000; ///< milliseconds
constexpr int kAnswerLimit = 3000;  ///< milliseconds

enum class Answer : std::uint8_t { kTaken, kRefused, kNone };

Answer send(const fs::path& path, const std::string& line) {
    QLocalSocket socket;
    socket.connectToServer(QFile::decodeName(path.c_str()));
    if (!socket.waitForConnected(kConnectLimit)) {
        if (socket.error() == QLocalSocket::ConnectionRefusedError) { // nobody listens any more
            std::error_code ignored;
            fs::remove(path, ignored);
        }
        return Answer::kRefused;
    }
    socket.write(line.data(), static_cast<qint64>(line.size()));
    while (!socket.canReadLine() && socket.waitForReadyRead(kAnswerLimit)) {
    }
    const QByteArray answer = socket.readLine();
    if (answer.isEmpty()) {
        return Answer::kNone;
    }
    return answer == "ok\n" ? Answer::kTaken : Answer::kRefused;
}

/// A host that is flooded closes connections without an answer: it gets another try, and another.
bool sendPatiently(const fs::path& path, const std::string& line) {
    static constexpr int kTries = 8;
    static constexpr std::chrono::milliseconds kPause{400};
    for (int i = 0; i < kTries; ++i) {
        const Answer answer = send(path, line);
        if (answer != Answer::kNone) {
            return answer == Answer::kTaken;
        }
        std::this_thread::sleep_for(kPause);
    }
    return false;
}

} // namespace

Delivery sendToHosts(const std::string& url) {
    if (url.size() > kMaximumUrlSize || url.find('\n') != std::string::npos) {
        return Delivery::kTooLong;
    }
    const std::string folder = callbackFolder();
    std::error_code ignored;
    if (!fs::exists(folder, ignored) || !makePrivateFolder(folder)) {
        return Delivery::kNoHost;
    }
    bool isTaken = false;
    // Hosts come and go meanwhile: a step that fails ends the walk.
    for (fs::directory_iterator entry(folder, ignored), end; !ignored && entry != end;
         entry.increment(ignored)) {
        std::error_code vanished;
        if (entry->is_socket(vanished) && entry->path().extension() == ".sock") {
            isTaken = sendPatiently(entry->path(), url + "\n") || isTaken;
        }
    }
    return isTaken ? Delivery::kTaken : Delivery::kNoHost;
}

} // namespace xbr::host
