#include "host/system/systemshell.h"

#include "framework/support/objects/text.h"
#include "host/base/mainthread.h"
#include "host/base/weburl.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QProcess>
#include <QTimer>
#include <QUrl>

#include <unistd.h>

namespace xbr::host {

SystemShell& SystemShell::instance() noexcept {
    static auto* const shell = make<SystemShell>().detach();
    return *shell;
}

/// Starts the browser by itself: no shell reads the URL, nothing that the browser prints reaches the host's
/// own output, and Ctrl-C is for the host alone.
bool SystemShell::startBrowser(const QString& url) {
    static constexpr qint64 kStartLimit = 10'000; // milliseconds; who closes a browser later has seen one
    auto* browser = new QProcess;
    browser->setProgram(QStringLiteral("xdg-open"));
    browser->setArguments({url});
    browser->setStandardInputFile(QProcess::nullDevice());
    browser->setStandardOutputFile(QProcess::nullDevice());
    browser->setStandardErrorFile(QProcess::nullDevice());
    browser->setChildProcessModifier([] { setsid(); });
    QElapsedTimer clock;
    clock.start();
    QObject::connect(browser, &QProcess::finished, browser,
                     [this, browser, clock](int code, QProcess::ExitStatus status) {
                         const bool hasFailed = code != 0 || status != QProcess::NormalExit;
                         forget(browser, hasFailed && clock.elapsed() < kStartLimit
                                             ? "xdg-open failed (" + std::to_string(code) + ")"
                                             : std::string());
                     });
    m_browsers.push_back(browser);
    browser->start();
    if (browser->waitForStarted()) {
        return true;
    }
    forget(browser, "xdg-open is not installed");
    return false;
}

void SystemShell::forget(QProcess* browser, const std::string& problem) {
    std::erase(m_browsers, browser);
    browser->deleteLater();
    if (!problem.empty()) {
        QTimer::singleShot(0, [this, url = browser->arguments().front().toStdString(), problem] {
            if (m_problemListener) {
                const auto listener = m_problemListener; // a copy: it may be replaced while it runs
                listener(url, problem);
            }
        });
    }
}

Result SystemShell::openUrl(Text url) noexcept {
    assertMainThread();
    const auto bytes = QByteArray::fromRawData(url.data, static_cast<qsizetype>(url.length));
    const QUrl parsed = QUrl::fromEncoded(bytes, QUrl::StrictMode);
    if (!isWebAddress(parsed)) {
        return kInvalidArgument;
    }
    const QByteArray encoded = parsed.toEncoded();
    const auto announcer = m_announcer; // a copy: it may be replaced while it runs
    const bool isReachable =
        announcer &&
        announcer(std::string_view(encoded.constData(), static_cast<std::size_t>(encoded.size())));
    const bool isStarted = startBrowser(QString::fromLatin1(encoded));
    return isStarted || isReachable ? kOk : kUnexpected;
}

} // namespace xbr::host

xbr::ISystemShell* XBRGetSystemShell() noexcept {
    return &xbr::host::SystemShell::instance();
}
