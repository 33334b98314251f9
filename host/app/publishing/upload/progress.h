#pragma once

#include <cstdint>
#include <deque>
#include <string>

namespace xbr::host {

/// How much was sent of a song, or of all, and how long the rest takes. Negative numbers are unknown.
struct Amount {
    std::int64_t bytes = 0;
    std::int64_t total = -1;
    std::int64_t secondsLeft = -1;

    /// Rounded down.
    int percent() const;
};

/// Songs are copied and packed, or rendered.
struct PreparationProgress {
    std::size_t songs = 0;
    Amount amount;    ///< of the songs' files; without a time
    std::string file; ///< worked on; may be empty
};

/// Bytes are on their way.
struct UploadProgress {
    std::int32_t index = 0; ///< of the song, from 0; the first of an album's
    std::string label;      ///< title of the song, or of the album
    bool isAlbum = false;
    Amount song; ///< of the request: the album is one
    Amount all;
    std::int64_t bytesPerSecond = -1; ///< mean of ten seconds
    std::size_t songsDone = 0;
    std::size_t songs = 0;
    std::int64_t quietSeconds = 0; ///< since the last byte left

    /// Nothing is left to send; the answer is awaited.
    bool isSent() const { return song.total > 0 && song.bytes >= song.total; }

    /// The connection may be broken.
    bool isStuck() const;
};

/// Measures how fast an upload goes. Times are milliseconds of one clock, bytes those of the whole upload;
/// pauses between two requests do not count.
class Pace {
public:
    /// A request begins. The first one begins an upload anew.
    void begin(bool isFirst, std::int64_t now);
    void sent(std::int64_t bytes, std::int64_t now);
    void pause(std::int64_t now);

    /// Mean of the last ten seconds; unknown (-1) in the first. Changes at most once a second.
    std::int64_t bytesPerSecond(std::int64_t now);

    /// For so many bytes, rounded up; unknown (-1) in the first three seconds.
    std::int64_t secondsFor(std::int64_t bytes, std::int64_t now);

    std::int64_t quietSeconds(std::int64_t now) const;

private:
    struct Sample {
        std::int64_t time;
        std::int64_t bytes;
    };
    std::int64_t running(std::int64_t now) const { return now - m_pauses; }

    std::deque<Sample> m_samples;
    std::int64_t m_pauses = 0;
    std::int64_t m_pausedAt = 0;
    std::int64_t m_movedAt = 0;
    std::int64_t m_bytes = 0;
    std::int64_t m_speed = -1;
    std::int64_t m_speedAt = 0;
};

} // namespace xbr::host
