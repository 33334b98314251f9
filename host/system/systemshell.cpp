#include "host/system/systemshell.h"

#include "framework/support/objects/text.h"
#include "host/base/mainthread.h"
#include "host/base/weburl.h"

#include <QByteArray>
#include <QProcess>
#include <QUrl>

namespace xbr::host {

namespace {

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

SystemShell& SystemShell::instance() noexcept {
    static auto* const shell = make<SystemShell>().detach();
    return *shell;
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
