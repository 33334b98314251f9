#pragma once

#include <QSocketNotifier>

#include <functional>
#include <map>
#include <memory>

namespace xbr::host {

/// Ctrl-C and the signals that ask a program to end. The first one ends the work in an orderly way; a second
/// one ends the process at once, for the case that the orderly way hangs.
///
/// One object per process. Main thread.
class Interruption {
public:
    /// Takes the signals over from the system.
    Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;
    ~Interruption();

    /// True once a signal came, also while the event loop does not run. Any thread.
    static bool isInterrupted() noexcept;

    /// Calls a function from the event loop, when a signal came, until its handle dies.
    using Handle = std::shared_ptr<void>;
    [[nodiscard]] Handle subscribe(std::function<void()> handler);

private:
    void tell();

    int m_pipe[2] = {-1, -1};
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::map<int, std::function<void()>> m_handlers;
    int m_nextHandler = 0;
};

} // namespace xbr::host
