#include "host/app/session/modalruns.h"

#include <vector>

namespace xbr::host {

ModalRuns::Run::Run(ModalRuns& runs, std::function<void()> end)
    : m_runs(&runs),
      m_entry(runs.m_runs.insert(runs.m_runs.end(), std::move(end))) {}

ModalRuns::Run::~Run() {
    m_runs->m_runs.erase(m_entry);
}

void ModalRuns::endAll() {
    m_isEnding = true;
    // A copy: runs may come to their end while they are asked to.
    const std::vector<std::function<void()>> ends(m_runs.rbegin(), m_runs.rend());
    for (const auto& end : ends) {
        end();
    }
}

} // namespace xbr::host
