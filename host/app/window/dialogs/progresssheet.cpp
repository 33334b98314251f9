#include "host/app/window/dialogs/progresssheet.h"

#include "host/app/window/look/tints.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace xbr::host {

namespace {

constexpr int kSteps = 1000;
constexpr int kWidth = 420;

} // namespace

ProgressSheet::ProgressSheet(QWidget* parent, const QString& title, bool isCancellable)
    : QDialog(parent),
      m_isCancellable(isCancellable),
      m_bar(new QProgressBar(this)),
      m_what(new QLabel(this)),
      m_cancel(new QPushButton(tr("&Cancel"), this)) {
    setWindowTitle(title);
    setWindowModality(Qt::ApplicationModal);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setMinimumWidth(kWidth);

    auto* heading = new QLabel(title, this);
    heading->setObjectName("sheetTitle");
    heading->setFont(scaledFont(1.1, QFont::DemiBold));
    heading->setTextFormat(Qt::PlainText);
    heading->setWordWrap(true);
    m_bar->setRange(0, kSteps);
    m_bar->setObjectName("sheetBar");
    m_bar->setTextVisible(false);
    m_bar->setAccessibleName(title);
    m_what->setObjectName("sheetDetail");
    m_what->setTextFormat(Qt::PlainText);
    m_what->setAccessibleName(tr("Working on"));
    m_cancel->setVisible(isCancellable);
    m_cancel->setObjectName("stopWork");
    m_cancel->setAutoDefault(false);
    connect(m_cancel, &QPushButton::clicked, this, &ProgressSheet::cancel);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 22, 24, 20);
    layout->setSpacing(10);
    layout->addWidget(heading);
    layout->addWidget(m_bar);
    auto* last = new QHBoxLayout;
    last->addWidget(m_what, 1);
    last->addWidget(m_cancel);
    layout->addLayout(last);
}

void ProgressSheet::tell(double fraction, const QString& what) {
    m_bar->setValue(static_cast<int>(std::clamp(fraction, 0.0, 1.0) * kSteps));
    if (!m_isCancelled) {
        m_what->setText(m_what->fontMetrics().elidedText(what, Qt::ElideMiddle, kWidth - m_cancel->width()));
        m_what->setToolTip(what);
    }
}

void ProgressSheet::cancel() {
    if (m_isCancellable) {
        m_isCancelled = true;
        m_cancel->setEnabled(false);
        m_what->setText(tr("Stopping…"));
    }
}

} // namespace xbr::host
