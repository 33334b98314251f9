#include "host/app/publishing/upload/reasons.h"

#include "framework/abi/system.h"
#include "framework/support/objects/text.h"
#include "host/base/fileurl.h"

#include <algorithm>
#include <filesystem>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;

/// The folder for copies, as the user knows it: the one that ours lies in.
std::string folderForCopies() {
    Ref<IString> url;
    XBRGetSystem()->getTemporaryFolder(url.out());
    return fs::path(localPath(take(url)).value_or("")).parent_path().string();
}

bool isThere(const std::string& path) {
    std::error_code failed;
    return fs::exists(path, failed);
}

} // namespace

void measureSpace(UploadFacts& facts) {
    std::error_code failed;
    for (const TrackFact& track : facts.tracks) {
        const auto size = fs::file_size(track.source, failed);
        facts.neededSpace += failed ? 0 : 2 * static_cast<std::int64_t>(size); // copied, and the copy packed
    }
    facts.folder = folderForCopies();
    const auto space = fs::space(facts.folder, failed);
    facts.freeSpace = failed ? 0 : static_cast<std::int64_t>(space.available);
}

void findReasons(UploadFacts& facts) {
    for (const TrackFact& track : facts.tracks) {
        if (track.state != TrackState::kDone && !track.wasSent && !isThere(track.source)) {
            facts.files.push_back({Fault::kMissing, track.source, 0, {}, {}, {}});
        }
    }
    const bool wasSent = std::any_of(facts.tracks.begin(), facts.tracks.end(),
                                     [](const TrackFact& track) { return track.wasSent; });
    if (facts.files.empty() && !wasSent && !facts.folder.empty() && facts.freeSpace < facts.neededSpace) {
        facts.files.push_back({Fault::kDiskFull, facts.folder, 0, {}, {}, {}});
    }
    for (Problem& problem : facts.files) {
        const bool isSong =
            std::any_of(facts.tracks.begin(), facts.tracks.end(),
                        [&](const TrackFact& track) { return track.source == problem.subject; });
        if (problem.fault == Fault::kMissing && (!isSong || isThere(problem.subject))) {
            problem.fault = Fault::kNoTemporaryFolder; // the place for the copy is missing
        }
    }
}

} // namespace xbr::host
