#include "host/base/mainthread.h"

#include <QCoreApplication>
#include <QThread>

#include <cassert>

namespace xbr::host {

void assertMainThread() noexcept {
#ifndef NDEBUG
    static const QThread* const first = QThread::currentThread();
    const auto* application = QCoreApplication::instance();
    assert(QThread::currentThread() == (application ? application->thread() : first));
#endif
}

} // namespace xbr::host
