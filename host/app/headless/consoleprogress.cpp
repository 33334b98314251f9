#include "host/app/headless/consoleprogress.h"

#include "framework/support/objects/text.h"

#include <QCoreApplication>
#include <QEventLoop>

namespace xbr::host {

namespace {

constexpr qint64 kTellEvery = 50; ///< milliseconds

} // namespace

void ConsoleProgress::setTitle(Text title) noexcept {
    m_title = toString(title);
}

void ConsoleProgress::setOption(std::int32_t option) noexcept {
    m_isCancellable = option == 1;
}

void ConsoleProgress::begin() noexcept {
    m_scope = std::make_unique<IndicatorScope>(m_context->activity, *this);
    m_told.invalidate();
}

void ConsoleProgress::end() noexcept {
    m_scope.reset();
}

void ConsoleProgress::update(double fraction, Text what) noexcept {
    if (!m_scope) {
        return;
    }
    if (!m_told.isValid() || m_told.elapsed() >= kTellEvery) {
        m_told.start();
        m_context->output->preparation(m_title, fraction, view(what));
    }
    const auto self = Ref<ConsoleProgress>::share(this);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

bool ConsoleProgress::isCancelled() noexcept {
    return m_isCancellable && m_context->interruption.isInterrupted();
}

} // namespace xbr::host
