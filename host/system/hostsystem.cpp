#include "host/system/hostsystem.h"

#include "framework/abi/system.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "host/base/fileurl.h"
#include "host/base/mainthread.h"
#include "host/system/signalhandler.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace xbr::host {

namespace {

/// The clock, the temporary folder, warnings.
class System final : public Object<ISystem> {
public:
    std::int64_t currentTime() const noexcept override;
    Result getTemporaryFolder(IString** out) noexcept override;
    void writeDebugWarning(Text message) noexcept override;
};

} // namespace

std::int64_t System::currentTime() const noexcept {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::floor<std::chrono::seconds>(now).count();
}

Result System::getTemporaryFolder(IString** out) noexcept {
    assertMainThread();
    *out = nullptr;
    const std::string& path = temporaryFolder();
    if (path.empty()) {
        return kUnexpected;
    }
    *out = make<String>(fileUrl(path)).detach();
    return kOk;
}

void System::writeDebugWarning(Text message) noexcept {
    static const bool isWanted = std::getenv("XBR_DEBUG") != nullptr; // NOLINT(concurrency-mt-unsafe)
    if (!isWanted) {
        return;
    }
    // One warning, one line: text from outside must not look like several, nor steer the terminal.
    std::string line = "debug: " + std::string(view(message));
    std::replace_if(
        line.begin(), line.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; }, ' ');
    line += '\n';
    [[maybe_unused]] const auto written = std::fwrite(line.data(), 1, line.size(), stderr);
}

void setBrowserAnnouncer(BrowserAnnouncer announcer) {
    assertMainThread();
    SystemShell::instance().setAnnouncer(std::move(announcer));
}

void setBrowserProblemListener(BrowserProblemListener listener) {
    assertMainThread();
    SystemShell::instance().setProblemListener(std::move(listener));
}

void dropPostedMessages() noexcept {
    SignalHandler::instance().dropPosted();
}

void holdPostedMessages(bool isHeld) {
    SignalHandler::instance().hold(isHeld);
}

bool hasPostedMessages() noexcept {
    return SignalHandler::instance().hasPosted();
}

void setQuietListener(std::function<void()> listener) {
    SignalHandler::instance().setQuietListener(std::move(listener));
}

} // namespace xbr::host

xbr::ISystem* XBRGetSystem() noexcept {
    static auto* const system = xbr::make<xbr::host::System>().detach();
    return system;
}
