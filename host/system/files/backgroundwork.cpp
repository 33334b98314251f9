#include "host/system/files/backgroundwork.h"

#include "framework/support/objects/ref.h"
#include "framework/support/objects/text.h"
#include "host/base/filedescriptor.h"
#include "host/base/mainthread.h"

#include <algorithm>
#include <poll.h>
#include <sys/eventfd.h>
#include <thread>

namespace xbr::host {

namespace {

/// False when the user has cancelled.
bool report(IProgress* progress, const PackageProgress& state) {
    if (!progress) {
        return true;
    }
    const std::string name = state.name();
    progress->update(state.fraction(), toText(name));
    return !progress->isCancelled();
}

struct Indicator {
    IProgress* progress = nullptr; ///< null while none is shown
    std::chrono::steady_clock::time_point told;
};

Indicator& indicator() {
    static Indicator shown;
    return shown;
}

} // namespace

void PackageProgress::start(std::string_view name) {
    const std::lock_guard lock(m_mutex);
    m_name = name;
}

std::string PackageProgress::name() const {
    const std::lock_guard lock(m_mutex);
    return m_name;
}

double PackageProgress::fraction() const {
    const auto done = static_cast<double>(m_done.load(std::memory_order_relaxed));
    return m_total > 0 ? std::min(done / static_cast<double>(m_total), 1.0) : 0.0;
}

Result runReporting(IProgress* progress, const PackageProgress& state, const PackageWork& work) {
    if (!report(progress, state)) {
        return kFalse;
    }
    Result result = kOk;
    std::atomic<bool> isDone = false;
    const FileDescriptor bell(eventfd(0, EFD_CLOEXEC)); // without it the end is seen a little later
    std::jthread worker([&](const std::stop_token& stop) {
        result = work(stop);
        isDone = true;
        eventfd_write(bell.get(), 1);
    });
    pollfd waiting = {bell.get(), POLLIN, 0};
    while (!isDone) {
        const bool isTimeToReport = poll(&waiting, 1, kReportInterval.count()) == 0;
        if (isTimeToReport && !worker.get_stop_token().stop_requested() && !report(progress, state)) {
            worker.request_stop();
        }
    }
    worker.join();
    return result;
}

void setWorkProgress(IProgress* progress) {
    assertMainThread();
    indicator() = {progress, {}};
}

Result runForIndicator(std::string_view what, const PackageWork& work) {
    const auto progress = Ref<IProgress>::share(indicator().progress);
    if (!progress) {
        return work({});
    }
    PackageProgress state(0);
    state.start(what);
    return runReporting(progress.get(), state, work);
}

bool keepIndicatorAlive() {
    const auto progress = Ref<IProgress>::share(indicator().progress);
    const auto now = std::chrono::steady_clock::now();
    if (!progress || now - indicator().told < kReportInterval) {
        return true;
    }
    indicator().told = now;
    progress->update(1.0, Text{});
    return !progress->isCancelled();
}

} // namespace xbr::host
