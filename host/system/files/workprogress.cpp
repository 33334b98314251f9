#include "host/system/files/workprogress.h"

#include "framework/support/objects/ref.h"
#include "framework/support/objects/text.h"
#include "host/system/hostsystem.h"
#include "host/system/mainthread.h"

namespace xbr::host {

namespace {

struct Indicator {
    IProgress* progress = nullptr; ///< null while none is shown
    std::chrono::steady_clock::time_point told;
};

Indicator& indicator() {
    static Indicator shown;
    return shown;
}

} // namespace

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
