#pragma once

namespace xbr::host {

/// What the front end's objects do for modules at the moment. The front end counts, the core looks.
struct Activity {
    int openIndicators = 0; ///< progress indicators between `begin` and `end`
};

/// Counts one progress indicator for as long as it lives.
class IndicatorScope {
public:
    explicit IndicatorScope(Activity& activity) : m_activity(&activity) { ++m_activity->openIndicators; }
    IndicatorScope(const IndicatorScope&) = delete;
    IndicatorScope& operator=(const IndicatorScope&) = delete;
    ~IndicatorScope() { --m_activity->openIndicators; }

private:
    Activity* m_activity;
};

} // namespace xbr::host
