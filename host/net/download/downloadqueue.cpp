#include "host/net/download/downloadqueue.h"

#include "host/net/download/downloadtask.h"

#include <algorithm>
#include <deque>
#include <vector>

namespace xbr::host {

namespace {

std::deque<DownloadTask*> g_waiting;
std::vector<DownloadTask*> g_running;

void giveTurns() {
    while (g_running.size() < DownloadQueue::kTurns && !g_waiting.empty()) {
        DownloadTask* const next = g_waiting.front();
        g_waiting.pop_front();
        g_running.push_back(next);
        next->takeTurn();
    }
}

} // namespace

void DownloadQueue::enter(DownloadTask& task) {
    g_waiting.push_back(&task);
    giveTurns();
}

void DownloadQueue::leave(const DownloadTask& task) {
    std::erase(g_waiting, &task);
    if (std::erase(g_running, &task) > 0) {
        giveTurns();
    }
}

void DownloadQueue::endAll() {
    auto ending = std::move(g_running);
    ending.insert(ending.end(), g_waiting.begin(), g_waiting.end());
    g_running.clear();
    g_waiting.clear();
    for (DownloadTask* task : ending) {
        task->endSilently();
    }
}

} // namespace xbr::host
