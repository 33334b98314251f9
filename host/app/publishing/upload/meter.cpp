#include "host/app/publishing/upload/meter.h"

#include "host/base/fileurl.h"

#include <algorithm>
#include <filesystem>

namespace xbr::host {

void Meter::requestBegan(std::int64_t bytes) {
    m_pace.begin(m_finished == 0, m_clock.elapsed());
    m_request = {0, bytes, -1};
}

void Meter::requestProgressed(std::int64_t sent) {
    if (m_request.total >= 0) {
        m_request.bytes = sent;
        m_pace.sent(m_finished + sent, m_clock.elapsed());
    }
}

void Meter::requestEnded(std::int64_t sent) {
    m_pace.pause(m_clock.elapsed());
    m_finished += sent;
    m_request = {};
}

std::int64_t Meter::sizeOf(const TrackReport& track) {
    const auto [found, isNew] = m_sizes.try_emplace(sentFile(track), 0);
    if (isNew) {
        std::error_code failed;
        const auto size = std::filesystem::file_size(localPath(sentFile(track)).value_or(""), failed);
        found->second = failed ? 0 : static_cast<std::int64_t>(size);
    }
    return found->second;
}

UploadProgress Meter::upload(const std::vector<TrackReport>& tracks, bool isAlbum) {
    UploadProgress progress;
    progress.isAlbum = isAlbum;
    progress.songs = tracks.size();
    std::int64_t waiting = 0;
    const auto travelling = std::find_if(tracks.begin(), tracks.end(),
                                         [](const TrackReport& track) { return track.isUploading; });
    if (travelling != tracks.end()) {
        progress.index = travelling->index;
        progress.label = isAlbum ? travelling->details.text(Detail::kAlbumTitle) : labelOf(*travelling);
    }
    for (const TrackReport& track : tracks) {
        progress.songsDone += track.state == TrackState::kDone ? 1 : 0;
        waiting += track.state == TrackState::kNone && !track.isUploading ? sizeOf(track) : 0;
    }
    const std::int64_t now = m_clock.elapsed();
    progress.bytesPerSecond = m_pace.bytesPerSecond(now);
    progress.quietSeconds = m_pace.quietSeconds(now);
    const auto complete = [this, now](std::int64_t bytes, std::int64_t total) {
        return Amount{bytes, total, m_pace.secondsFor(total - bytes, now)};
    };
    const std::int64_t sent = m_finished + m_request.bytes;
    progress.song = complete(m_request.bytes, m_request.total);
    progress.all = complete(sent, sent + m_request.total - m_request.bytes + waiting);
    return progress;
}

PreparationProgress Meter::preparation(const std::vector<TrackReport>& tracks, bool isAlbum, double fraction,
                                       const std::string& file) {
    PreparationProgress progress;
    progress.file = file;
    std::int64_t total = 0;
    for (const TrackReport& track : tracks) {
        if (isAlbum || (track.state == TrackState::kNone && progress.songs == 0)) {
            total += sizeOf(track);
            ++progress.songs;
        }
    }
    progress.amount = {static_cast<std::int64_t>(static_cast<double>(total) * fraction), total, -1};
    return progress;
}

} // namespace xbr::host
