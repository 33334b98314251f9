#include "bench/publish/preparation.h"

#include "framework/support/data/memorystream.h"
#include "framework/support/data/url.h"
#include "framework/support/objects/text.h"
#include "host/base/fileurl.h"
#include "release/payloadbuilder.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>

namespace bench {

namespace {

/// The most memory that this process ever had in use, in KiB.
long peakMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        long size = 0;
        if (word == "VmHWM:" && status >> size) {
            return size;
        }
    }
    return -1;
}

} // namespace

void Watcher::update(double /*fraction*/, xbr::Text /*what*/) noexcept {
    const auto now = Clock::now();
    if (m_reports++ == 0) {
        m_first = now;
    } else {
        m_longestSilence = std::max(m_longestSilence, Milliseconds(now - m_last));
    }
    m_last = now;
}

bool Watcher::isCancelled() noexcept {
    const bool isCancelled = m_reports > 0 && sinceClick().count() >= 0;
    if (isCancelled && !std::exchange(m_isNoticed, true)) {
        m_noticed = Clock::now();
    }
    return isCancelled;
}

xbr::Ref<brindlex::IngestionRequest> prepare(const std::vector<std::string>& files, Watcher& watcher) {
    std::vector<xbr::Ref<brindlex::TrackMetadata>> records;
    std::vector<xbr::Url> urls;
    for (const auto& file : files) {
        auto record = xbr::make<brindlex::TrackMetadata>();
        record->albumTitle = "Album";
        record->songTitle = std::filesystem::path(file).stem().string();
        records.push_back(std::move(record));
        urls.emplace_back(xbr::host::fileUrl(file));
    }
    return brindlex::buildPayload(records, urls, "key", watcher);
}

int measurePreparation(const std::vector<std::string>& files) {
    const auto watcher = xbr::make<Watcher>();
    const auto start = Clock::now();
    const auto request = prepare(files, *watcher);
    const Milliseconds took = Clock::now() - start;
    if (!request) {
        return 1;
    }
    const auto size = xbr::measure(*request->body);
    std::printf(
        R"({"seconds": %.4f, "packing": %.4f, "body": %lld, "peak": %ld, "reports": %d, "silence": %.1f})"
        "\n",
        took.count() / 1000, watcher->reportedTime().count() / 1000, static_cast<long long>(size),
        peakMemory() * 1024, watcher->reports(), watcher->longestSilence().count());
    brindlex::cleanupPayload();
    return 0;
}

} // namespace bench
