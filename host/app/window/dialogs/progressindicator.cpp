#include "host/app/window/dialogs/progressindicator.h"

#include "framework/support/objects/text.h"

#include <QApplication>

namespace xbr::host {

namespace {

constexpr qint64 kShowAfter = 120;  ///< milliseconds
constexpr qint64 kUpdateEvery = 16; ///< milliseconds

QString toQString(Text text) {
    return QString::fromUtf8(text.data, static_cast<qsizetype>(text.length));
}

} // namespace

ProgressIndicator::Work::Work(ProgressIndicator& indicator, WindowContext& context, const QString& title,
                              bool isCancellable)
    : scope(context.activity, indicator),
      sheet(new ProgressSheet(context.window, title, isCancellable)),
      run(context.modalRuns, [this] {
          if (sheet) {
              sheet->cancel();
          }
      }) {
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
        m_work = std::make_unique<Work>(*this, *m_context, m_title, m_isCancellable);
    }
}

void ProgressIndicator::end() noexcept {
    if (!m_work) {
        return;
    }
    m_wasCancelled = isCancelled();
    delete m_work->sheet;
    m_work.reset();
    if (m_context->preparationEnded) {
        m_context->preparationEnded(m_wasCancelled);
    }
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
    return m_isCancellable && (isWanted || m_context->modalRuns.isEnding());
}

} // namespace xbr::host
