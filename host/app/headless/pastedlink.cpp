#include "host/app/headless/pastedlink.h"

#include "host/app/headless/output/output.h"
#include "host/app/publishing/signin/account.h"

#include <QTimer>

#include <unistd.h>
#include <utility>

namespace xbr::host {

PastedLink::PastedLink(HostSession& session, Output& output)
    : m_session(&session),
      m_output(&output),
      m_notifier(STDIN_FILENO, QSocketNotifier::Read) {
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] { read(); });
}

void PastedLink::read() {
    static constexpr int kLookAgain = 100; // milliseconds
    // Who reads in the background is stopped; and modules may not be called while they wait for the keyring.
    const bool isOurs = tcgetpgrp(STDIN_FILENO) == getpgrp();
    if (!isOurs || m_session->activity().isOpen(Activity::Kind::kKeyring)) {
        m_notifier.setEnabled(false);
        QTimer::singleShot(kLookAgain, &m_notifier, [this] { m_notifier.setEnabled(true); });
        return;
    }
    char bytes[4096];
    const auto count = ::read(STDIN_FILENO, bytes, sizeof(bytes));
    if (count <= 0) { // Ctrl-D, or the terminal is gone
        m_notifier.setEnabled(false);
        return;
    }
    m_received.append(bytes, static_cast<std::size_t>(count));
    if (m_received.ends_with('\n')) {
        take(std::exchange(m_received, {}));
    }
}

void PastedLink::take(std::string link) {
    link = QString::fromStdString(link).trimmed().toStdString();
    if (link.empty()) {
        return;
    }
    const std::string problem = problemOfLinkBack(link, m_session->settings());
    if (problem.empty()) {
        m_session->takeLinkBack(link);
    } else {
        m_output->message(problem);
    }
}

} // namespace xbr::host
