#pragma once

#include <functional>
#include <list>

namespace xbr::host {

/// The dialogs and progress indicators that run the event loop inside a call of a module. While there are
/// any, code of the module is on the stack: it may not be unloaded.
class ModalRuns {
public:
    /// One run; it is over when this object dies.
    class Run {
    public:
        /// `end` is called, possibly more than once, when the run has to end soon.
        Run(ModalRuns& runs, std::function<void()> end);
        Run(const Run&) = delete;
        Run& operator=(const Run&) = delete;
        ~Run();

    private:
        ModalRuns* m_runs;
        std::list<std::function<void()>>::iterator m_entry;
    };

    bool isEmpty() const { return m_runs.empty(); }

    /// Asks all runs to end, the newest first. Later ones are not to begin: see `isEnding`.
    void endAll();

    /// True once the program is about to end.
    bool isEnding() const { return m_isEnding; }

private:
    std::list<std::function<void()>> m_runs;
    bool m_isEnding = false;
};

} // namespace xbr::host
