#include "host/net/download/downloadqueue.h"

#include <algorithm>
#include <deque>
#include <vector>

namespace xbr::host {

namespace {

std::deque<Download*> g_waiting;
std::vector<Download*> g_running;

void giveTurns() {
    while (g_running.size() < DownloadQueue::kTurns && !g_waiting.empty()) {
        Download* const next = g_waiting.front();
        g_waiting.pop_front();
        g_running.push_back(next);
        next->takeTurn();
    }
}

} // namespace

void DownloadQueue::enter(Download& download) {
    g_waiting.push_back(&download);
    giveTurns();
}

void DownloadQueue::leave(const Download& download) {
    std::erase(g_waiting, &download);
    if (std::erase(g_running, &download) > 0) {
        giveTurns();
    }
}

void DownloadQueue::endAll() {
    auto ending = std::move(g_running);
    ending.insert(ending.end(), g_waiting.begin(), g_waiting.end());
    g_running.clear();
    g_waiting.clear();
    for (Download* download : ending) {
        download->endSilently();
    }
}

} // namespace xbr::host
