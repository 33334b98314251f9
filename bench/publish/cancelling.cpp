#include "bench/publish/preparation.h"

#include <algorithm>
#include <cstdio>

namespace bench {

int measureCancelling(const std::vector<std::string>& files, int count) {
    const auto whole = xbr::make<Watcher>();
    prepare(files, *whole);
    brindlex::cleanupPayload();
    Milliseconds noticed{0};
    Milliseconds returned{0};
    int cancelled = 0;
    for (int i = 0; i < count; ++i) {
        const auto watcher = xbr::make<Watcher>();
        watcher->cancelAfter(whole->reportedTime() * i / count);
        const auto request = prepare(files, *watcher);
        const Milliseconds sinceClick = watcher->sinceClick();
        brindlex::cleanupPayload();
        // A preparation that was quicker this time has no answer to give.
        if (!request) {
            ++cancelled;
            noticed = std::max(noticed, watcher->noticedAfter());
            returned = std::max(returned, sinceClick);
        }
    }
    std::printf(R"({"cancelled": %d, "noticed": %.1f, "returned": %.1f})"
                "\n",
                cancelled, noticed.count(), returned.count());
    return 0;
}

} // namespace bench
