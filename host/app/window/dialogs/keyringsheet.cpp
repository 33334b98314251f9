#include "host/app/window/dialogs/keyringsheet.h"

#include "host/app/publishing/verdict/words.h"
#include "host/app/window/look/tints.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace xbr::host {

KeyringSheet::KeyringSheet(QWidget* window) : m_sheet(new QDialog(window)), m_text(new QLabel(m_sheet)) {
    m_sheet->setObjectName("keyringSheet");
    m_sheet->setWindowModality(Qt::ApplicationModal);
    m_sheet->setWindowTitle(tr("Keyring"));
    m_text->setFont(scaledFont(1.1, QFont::DemiBold));
    m_text->setWordWrap(true);
    auto* cancel = new QPushButton(tr("&Cancel"), m_sheet);
    QObject::connect(cancel, &QPushButton::clicked, m_sheet, &QDialog::reject);
    auto* layout = new QVBoxLayout(m_sheet);
    layout->setContentsMargins(24, 22, 24, 20);
    layout->setSpacing(14);
    layout->addWidget(m_text);
    layout->addWidget(cancel, 0, Qt::AlignRight);
    m_clock.start();
}

bool KeyringSheet::wait(bool isForUser) {
    static constexpr qint64 kShowAfter = 300; // milliseconds
    static constexpr int kMoment = 20;        // milliseconds
    if (!m_sheet) {
        return false;
    }
    m_text->setText(isForUser ? Words::tr("Waiting for the keyring to be unlocked.")
                              : Words::tr("Waiting for the keyring to answer."));
    const bool isShown = m_sheet->isVisible();
    if (!isShown && m_clock.elapsed() >= kShowAfter) {
        m_sheet->show();
    }
    // Until the sheet blocks the other windows their input has to wait.
    QCoreApplication::processEvents(isShown ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents,
                                    kMoment);
    return m_sheet && (!isShown || m_sheet->isVisible());
}

} // namespace xbr::host
