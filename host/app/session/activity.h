#pragma once

#include "host/system/hostsystem.h"

namespace xbr::host {

/// What the front end's objects do for modules at the moment. The front end counts, the core looks.
struct Activity {
    int openIndicators = 0; ///< progress indicators between `begin` and `end`
};

/// Counts one progress indicator for as long as it lives, and lets it show what the host's own libraries do.
class IndicatorScope {
public:
    IndicatorScope(Activity& activity, IProgress& indicator) : m_activity(&activity) {
        ++m_activity->openIndicators;
        setWorkProgress(&indicator);
    }
    IndicatorScope(const IndicatorScope&) = delete;
    IndicatorScope& operator=(const IndicatorScope&) = delete;
    ~IndicatorScope() {
        setWorkProgress(nullptr);
        --m_activity->openIndicators;
    }

private:
    Activity* m_activity;
};

} // namespace xbr::host
