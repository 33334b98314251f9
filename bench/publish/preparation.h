#pragma once

#include "framework/abi/progress.h"
#include "framework/support/objects/object.h"
#include "release/payload.h"

#include <chrono>
#include <string>
#include <vector>

namespace bench {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

/// The user who watches the progress: measures how long nothing is heard, and may cancel.
class Watcher final : public xbr::Object<xbr::IProgress> {
public:
    void update(double fraction, xbr::Text what) noexcept override;
    bool isCancelled() noexcept override;

    /// Cancels some time after the first report.
    void cancelAfter(Milliseconds delay) { m_delay = delay; }

    int reports() const { return m_reports; }
    Milliseconds longestSilence() const { return m_longestSilence; }
    Milliseconds reportedTime() const { return m_last - m_first; }

    /// Since the user cancelled; and from then until the work first asked.
    Milliseconds sinceClick() const { return Clock::now() - m_first - m_delay; }
    Milliseconds noticedAfter() const { return m_noticed - m_first - m_delay; }

private:
    static constexpr Milliseconds kNever{1e12};

    int m_reports = 0;
    Clock::time_point m_first;
    Clock::time_point m_last;
    Clock::time_point m_noticed;
    Milliseconds m_longestSilence{0};
    Milliseconds m_delay = kNever;
    bool m_isNoticed = false;
};

/// Prepares an album of these files as an upload does: copies, document, archive, body.
xbr::Ref<brindlex::IngestionRequest> prepare(const std::vector<std::string>& files, Watcher& watcher);

/// Prints what one preparation took, as JSON.
int measurePreparation(const std::vector<std::string>& files);

/// Cancels preparations at moments all over the packing and prints the delays, as JSON.
int measureCancelling(const std::vector<std::string>& files, int count);

/// Sends a file from memory to a server and prints how long that took, as JSON.
int measureUpload(const std::string& file, const std::string& url);

} // namespace bench
