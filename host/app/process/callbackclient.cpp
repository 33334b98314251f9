#include "host/app/process/callbackclient.h"

#include "host/app/process/callbackplace.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QLocalSocket>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <future>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;

/// The answer of one host to a line; empty when there is none in time. One that is flooded closes connections
/// without an answer, and is tried again.
std::string ask(const fs::path& path, const std::string& line) {
    static constexpr int kLimit = 1000; // milliseconds
    static constexpr std::chrono::milliseconds kPause{50};
    const QDeadlineTimer limit(kLimit);
    const auto left = [&limit] { return static_cast<int>(limit.remainingTime()); };
    while (!limit.hasExpired()) {
        QLocalSocket socket;
        socket.connectToServer(QFile::decodeName(path.c_str()));
        if (!socket.waitForConnected(left())) {
            if (socket.error() == QLocalSocket::ConnectionRefusedError) { // nobody listens any more
                std::error_code ignored;
                fs::remove(path, ignored);
            }
            return {};
        }
        socket.write((line + '\n').c_str());
        while (!socket.canReadLine() && socket.waitForReadyRead(left())) {
        }
        const QByteArray answer = socket.readLine();
        if (answer.endsWith('\n')) {
            return answer.chopped(1).toStdString();
        }
        std::this_thread::sleep_for(kPause);
    }
    return {};
}

struct Host {
    fs::path path;
    std::string answer;
};

/// Asks all of them at once.
std::vector<Host> askHosts(const std::string& line) {
    const std::string folder = callbackFolder();
    std::error_code ignored;
    if (!fs::exists(folder, ignored) || !makePrivateFolder(folder)) {
        return {};
    }
    std::vector<std::pair<fs::path, std::future<std::string>>> asked;
    // Hosts come and go meanwhile: a step that fails ends the walk.
    for (fs::directory_iterator entry(folder, ignored), end; !ignored && entry != end;
         entry.increment(ignored)) {
        std::error_code vanished;
        if (entry->is_socket(vanished) && entry->path().extension() == ".sock") {
            asked.emplace_back(entry->path(), std::async(std::launch::async, ask, entry->path(), line));
        }
    }
    std::vector<Host> hosts;
    hosts.reserve(asked.size());
    for (auto& [path, answer] : asked) {
        hosts.push_back({path, answer.get()});
    }
    return hosts;
}

/// When a host that waits opened a browser; none: it does not wait.
std::optional<std::int64_t> waitsSince(const std::string& answer) {
    if (!answer.starts_with(kWaits)) {
        return std::nullopt;
    }
    std::int64_t time = 0;
    std::from_chars(answer.data() + kWaits.size(), answer.data() + answer.size(), time);
    return time;
}

bool isLine(const std::string& url) {
    return url.size() <= kMaximumUrlSize && url.find('\n') == std::string::npos &&
           url.find('\0') == std::string::npos;
}

} // namespace

Delivery sendToHosts(const std::string& url) {
    if (!isLine(url)) {
        return Delivery::kTooLong;
    }
    const auto hosts = askHosts(url);
    return std::any_of(hosts.begin(), hosts.end(), [](const Host& host) { return host.answer == kTaken; })
               ? Delivery::kTaken
               : Delivery::kNoHost;
}

Delivery sendLinkBack(const std::string& url) {
    if (!isLine(url)) {
        return Delivery::kTooLong;
    }
    auto hosts = askHosts(std::string(kWhoWaits));
    std::erase_if(hosts, [](const Host& host) { return !waitsSince(host.answer); });
    std::sort(hosts.begin(), hosts.end(), [](const Host& left, const Host& right) {
        return waitsSince(left.answer) > waitsSince(right.answer);
    });
    // One that took another link since it was asked leaves this one to the next.
    const std::string line = std::string(kLinkBack) + url;
    return std::any_of(hosts.begin(), hosts.end(),
                       [&line](const Host& host) { return ask(host.path, line) == kTaken; })
               ? Delivery::kTaken
               : Delivery::kNoHost;
}

} // namespace xbr::host
