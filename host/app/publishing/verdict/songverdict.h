#pragma once

#include "host/app/publishing/plan.h"
#include "host/app/publishing/upload/tracks.h"
#include "host/app/publishing/verdict/cause.h"
#include "host/base/problem.h"

#include <cstdint>
#include <string>
#include <vector>

namespace xbr::host {

/// What is known of a track when nothing moves any more.
struct TrackFact {
    std::string label;  ///< its title, or the name of its file
    std::string source; ///< path of the file that the user chose
    TrackState state = TrackState::kNone;
    std::vector<Detail> missing; ///< empty fields of the panel's editor

    // The request that carried it
    bool wasSent = false;
    bool isNew = false;     ///< it was sent in this upload
    std::int64_t sent = 0;  ///< bytes that left
    std::int64_t total = 0; ///< bytes of the body
    int status = 0;         ///< 0: no answer came
    std::string said;       ///< the service's own words
    std::int64_t wait = -1; ///< seconds that it asks to wait; -1 for none
    Problem problem;        ///< why no answer came
};

struct UploadFacts {
    std::vector<TrackFact> tracks;
    bool isAlbum = false;
    std::string albumTitle;
    std::vector<Problem> files; ///< files that could not be copied or written meanwhile, by the user's names
    std::string folder;         ///< for copies
    std::int64_t neededSpace = 0; ///< in there
    std::int64_t freeSpace = 0;
    std::vector<Finding> findings; ///< why the host did not let it go
    bool isNothingWaiting = false; ///< the user asked, and the module found nothing to send
    bool isCancelled = false;
};

/// What came of one song.
struct SongVerdict {
    Cause cause = Cause::kPublished;
    std::string label;
    std::string source;
    std::string sentence;
    int status = 0;                ///< of the service's answer; 0 when none came
    std::int64_t sent = 0;         ///< bytes; in an album each song's are the album's
    std::vector<Detail> missing{}; ///< what its editor shows empty
};

/// Of one of the tracks.
SongVerdict judge(const UploadFacts& facts, const TrackFact& track);

/// What is empty in the song, or in any of the album.
std::vector<Detail> missingIn(const UploadFacts& facts, const TrackFact& track);

} // namespace xbr::host
