#include "host/app/window/dialogs/progressindicator.h"

#include "framework/support/objects/text.h"
#include "host/app/window/look/tints.h"
#include "host/base/qttext.h"

#include <QApplication>
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

constexpr qint64 kShowAfter = 120;  ///< milliseconds
constexpr qint64 kUpdateEvery = 16; ///< milliseconds

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
    m_cancel->setObjectName("stopWork"); // before it is shown: that is when it gets its style
    m_cancel->setVisible(isCancellable);
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

ProgressIndicator::Work::Work(ProgressIndicator& indicator, DialogPlace& place, const QString& title,
                              bool isCancellable)
    : sheet(new ProgressSheet(place.window, title, isCancellable)),
      run(
          place.session.activity(), Activity::Kind::kPreparing,
          [this] {
              if (sheet) {
                  sheet->cancel();
              }
          },
          &indicator) {
    clock.start();
}

void ProgressIndicator::setTitle(Text title) noexcept {
    m_title = toQString(title);
}

void ProgressIndicator::setOption(std::int32_t option) noexcept {
    m_isCancellable = option == 1;
}

void ProgressIndicator::begin() noexcept {
    if (!m_work) {
        m_wasCancelled = false;
        m_work = std::make_unique<Work>(*this, *m_place, m_title, m_isCancellable);
    }
}

void ProgressIndicator::end() noexcept {
    if (!m_work) {
        return;
    }
    m_wasCancelled = isCancelled();
    delete m_work->sheet;
    if (m_wasCancelled) {
        m_work->run.cancelled();
    }
    m_work.reset();
}

void ProgressIndicator::update(double fraction, Text what) noexcept {
    if (!m_work || !m_work->sheet) {
        return;
    }
    const qint64 now = m_work->clock.elapsed();
    const bool isShown = m_work->sheet->isVisible();
    if (isShown && now - m_work->updated < kUpdateEvery && fraction < 1.0) {
        return;
    }
    m_work->updated = now;
    m_work->sheet->tell(fraction, toQString(what));
    m_work->run.progressed(fraction, toString(what));
    const auto self = Ref<ProgressIndicator>::share(this);
    if (!isShown && now >= kShowAfter) {
        m_work->sheet->show();
    }
    // Until the sheet blocks the other windows their input has to wait.
    QCoreApplication::processEvents(isShown ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
}

bool ProgressIndicator::isCancelled() noexcept {
    if (!m_work) {
        return m_wasCancelled;
    }
    const bool isWanted = !m_work->sheet || m_work->sheet->isCancelled();
    return m_isCancellable && (isWanted || m_place->session.activity().isEnding());
}

} // namespace xbr::host
