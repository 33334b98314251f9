#pragma once

#include <QTimer>

#include <functional>

namespace xbr::host {

/// Finds the moment at which work that modules do in the background has come to rest.
///
/// Rationale: modules post messages to themselves between the steps of their work, and look idle there. So it
/// counts as rest only when the work is idle, and stays so without any change for some turns of the event
/// loop. The loop is asked again and again, because not every change of what "idle" looks at is signalled.
class Settling {
public:
    /// `isIdle` is asked in turns of the event loop; `done` is called once, from the loop, after `start`. It
    /// may destroy this object.
    Settling(std::function<bool()> isIdle, std::function<void()> done);

    void start();

    /// Something changed: the count of quiet turns begins again.
    void touch() { m_quietTurns = 0; }

private:
    void turn();

    std::function<bool()> m_isIdle;
    std::function<void()> m_done;
    QTimer m_timer;
    int m_quietTurns = 0;
};

} // namespace xbr::host
