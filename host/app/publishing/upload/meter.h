#pragma once

#include "host/app/publishing/upload/progress.h"
#include "host/app/publishing/upload/tracks.h"

#include <QElapsedTimer>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace xbr::host {

/// Measures how far one upload is. Its requests come one after the other.
class Meter {
public:
    Meter() { m_clock.start(); }

    void requestBegan(std::int64_t bytes);
    void requestProgressed(std::int64_t sent);
    void requestEnded(std::int64_t sent);

    UploadProgress upload(const std::vector<TrackReport>& tracks, bool isAlbum);

    /// `fraction` is how much of the files that go next was worked through; `file` is the one that is.
    PreparationProgress preparation(const std::vector<TrackReport>& tracks, bool isAlbum, double fraction,
                                    const std::string& file);

private:
    std::int64_t sizeOf(const TrackReport& track);

    Pace m_pace;
    Amount m_request;                            ///< on its way; no total when there is none
    std::int64_t m_finished = 0;                 ///< bytes of the requests that have ended
    std::map<std::string, std::int64_t> m_sizes; ///< of files, by URL
    QElapsedTimer m_clock;
};

} // namespace xbr::host
