#include "host/app/process/singleinstance.h"

#include "framework/support/objects/text.h"
#include "host/app/process/callbackclient.h"
#include "host/app/process/callbackplace.h"
#include "host/base/fileurl.h"

#include <QElapsedTimer>
#include <QFile>

#include <chrono>
#include <filesystem>
#include <thread>
#include <unistd.h>

namespace xbr::host {

namespace {

/// The URL that stands for the window of a running host, among those that are sent to it.
constexpr char kShowWindowUrl[] = "xbrhost:window";

constexpr qint64 kPatience = 10000; ///< milliseconds that the other may take to get ready
constexpr std::chrono::milliseconds kPause{100};

/// The other may be just about to begin, or to end.
bool send(const std::vector<std::string>& files) {
    for (const std::string& file : files) {
        std::error_code ignored;
        sendToHosts(fileUrl(std::filesystem::absolute(file, ignored).string()));
    }
    return sendToHosts(kShowWindowUrl) == Delivery::kTaken;
}

} // namespace

SingleInstance::~SingleInstance() {
    if (m_lock) {
        m_lock.reset();
        rmdir(callbackFolder().c_str()); // stays when another host listens there
    }
}

Outcome<SingleInstance::Place> SingleInstance::take(const std::vector<std::string>& files) {
    const std::string folder = callbackFolder();
    QElapsedTimer clock;
    clock.start();
    do {
        if (const auto made = makePrivateFolder(folder); !made) {
            return made.problem();
        }
        auto lock = std::make_unique<QLockFile>(QFile::decodeName((folder + "/window.lock").c_str()));
        lock->setStaleLockTime(0); // held for as long as the window is open
        if (lock->tryLock()) {
            m_lock = std::move(lock);
            return Place::kFirst;
        }
        if (send(files)) {
            return Place::kSecond;
        }
        std::this_thread::sleep_for(kPause);
    } while (clock.elapsed() < kPatience);
    return Place::kNoAnswer;
}

OpenHandler::OpenHandler(std::function<void(const std::string& path)> openFile)
    : m_openFile(std::move(openFile)) {
    XBRGetFileTypeRegistry()->addHandler(this);
}

void OpenHandler::close() {
    XBRGetFileTypeRegistry()->removeHandler(this);
}

bool OpenHandler::openUrl(Text url) noexcept {
    if (view(url) == kShowWindowUrl) {
        return true; // every URL shows the window
    }
    const auto path = localPath(view(url));
    if (path) {
        m_openFile(*path);
    }
    return path.has_value();
}

} // namespace xbr::host
