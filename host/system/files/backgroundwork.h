#pragma once

#include "framework/abi/progress.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <mutex>
#include <stop_token>
#include <string>
#include <string_view>

namespace xbr::host {

/// How far packing has come. Those who do it tell, the main thread looks.
class PackageProgress {
public:
    /// `total` is the number of bytes that make up the whole; 0 when it is not known.
    explicit PackageProgress(std::int64_t total) : m_total(total) {}

    /// Names the entry that is being worked on.
    void start(std::string_view name);

    /// Counts bytes that are done.
    void advance(std::int64_t bytes) { m_done.fetch_add(bytes, std::memory_order_relaxed); }

    double fraction() const;
    std::string name() const;

private:
    const std::int64_t m_total;
    std::atomic<std::int64_t> m_done = 0;
    mutable std::mutex m_mutex;
    std::string m_name;
};

/// What a thread of its own does: kOk, kUnexpected, or kFalse when it stopped because it was told to.
using PackageWork = std::function<Result(std::stop_token)>;

/// Time between two reports.
constexpr std::chrono::duration<int, std::milli> kReportInterval{40};

/// Runs `work` on a thread of its own, and ends with it. The calling thread reports to `progress` (may be
/// null) meanwhile, once before the work starts and then every kReportInterval, and tells the work to stop
/// when the user cancels: neither a slow disk nor a slow window holds up the other.
Result runReporting(IProgress* progress, const PackageProgress& state, const PackageWork& work);

/// For front ends: names the indicator that is shown now, or none (null); not kept. Work that the border
/// gives no progress for, such as copying a file, tells it what is done and ends when the user cancels there.
/// Main thread.
[[gnu::visibility("default")]] void setWorkProgress(IProgress* progress);

/// Runs `work` as runReporting does, on behalf of the indicator that the front end shows (setWorkProgress);
/// at once and on this thread when it shows none. kFalse, too, when the user has cancelled already.
Result runForIndicator(std::string_view what, const PackageWork& work);

/// Tells the indicator, some times a second, that reading goes on. False when the user cancelled: who reads
/// gives up. Runs the event loop.
bool keepIndicatorAlive();

} // namespace xbr::host
