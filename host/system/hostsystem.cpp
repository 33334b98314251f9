#include "host/system/hostsystem.h"

#include "framework/abi/system.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "host/base/fileurl.h"
#include "host/base/mainthread.h"
#include "host/base/weburl.h"
#include "host/system/signalhandler.h"

#include <QByteArray>
#include <QProcess>
#include <QUrl>

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

class SystemShell final : public Object<ISystemShell> {
public:
    Result openUrl(Text url) noexcept override;
};

BrowserAnnouncer& announcer() {
    static auto* const announcer = new BrowserAnnouncer;
    return *announcer;
}

/// Starts the browser by itself: no shell reads the URL, and nothing that the browser prints reaches the
/// host's own output.
bool startBrowser(const QString& url) {
    QProcess process;
    process.setProgram(QStringLiteral("xdg-open"));
    process.setArguments({url});
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

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

Result SystemShell::openUrl(Text url) noexcept {
    assertMainThread();
    const auto bytes = QByteArray::fromRawData(url.data, static_cast<qsizetype>(url.length));
    const QUrl parsed = QUrl::fromEncoded(bytes, QUrl::StrictMode);
    if (!isWebAddress(parsed)) {
        return kInvalidArgument;
    }
    const QByteArray encoded = parsed.toEncoded();
    const auto announce = announcer(); // a copy: it may be replaced while it runs
    const bool isReachable =
        announce && announce(std::string_view(encoded.constData(), static_cast<std::size_t>(encoded.size())));
    const bool isStarted = startBrowser(QString::fromLatin1(encoded));
    return isStarted || isReachable ? kOk : kUnexpected;
}

void setBrowserAnnouncer(BrowserAnnouncer announcer) {
    assertMainThread();
    host::announcer() = std::move(announcer);
}

void dropPostedMessages() noexcept {
    SignalHandler::instance().dropPosted();
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

xbr::ISystemShell* XBRGetSystemShell() noexcept {
    static auto* const shell = xbr::make<xbr::host::SystemShell>().detach();
    return shell;
}
