#include "host/app/publishing/preparationproblem.h"

#include "framework/abi/system.h"
#include "framework/support/objects/text.h"
#include "host/app/modules/publishentry.h"
#include "host/base/fileurl.h"
#include "host/system/hostsystem.h"

#include <filesystem>
#include <unistd.h>

namespace xbr::host {

namespace {

namespace fs = std::filesystem;

/// A song that was there when it was chosen, and is not any more.
std::string problemOfSongs(const std::vector<TrackReport>& tracks) {
    for (const TrackReport& track : tracks) {
        const auto path = localPath(track.file);
        const std::string problem =
            path && track.state != TrackState::kDone ? problemOfFile(*path) : std::string();
        if (!problem.empty()) {
            return "'" + *path + "' " + problem + " any more";
        }
    }
    return {};
}

std::uintmax_t sizeOf(const std::vector<TrackReport>& tracks) {
    std::uintmax_t size = 0;
    for (const TrackReport& track : tracks) {
        const auto path = localPath(track.file);
        std::error_code failed;
        const auto bytes = path ? fs::file_size(*path, failed) : 0;
        size += failed ? 0 : bytes;
    }
    return size;
}

/// Songs are copied and packed in the temporary folder.
std::string problemOfSpace(const std::vector<TrackReport>& tracks) {
    Ref<IString> url;
    XBRGetSystem()->getTemporaryFolder(url.out());
    const auto folder = localPath(take(url));
    if (!folder || access(folder->c_str(), W_OK | X_OK) != 0) {
        return "the temporary folder cannot be written";
    }
    static constexpr std::uintmax_t kMebibyte = std::uintmax_t{1} << 20U;
    std::error_code failed;
    const auto space = fs::space(*folder, failed);
    const auto needed = 2 * sizeOf(tracks);
    if (failed || space.available >= needed) {
        return {};
    }
    return "there is not enough room in '" + fs::path(*folder).parent_path().string() +
           "': " + std::to_string(needed / kMebibyte + 1) + " MiB may be needed, " +
           std::to_string(space.available / kMebibyte) + " MiB are free (TMPDIR names another place)";
}

} // namespace

std::string findPreparationProblem(const std::vector<TrackReport>& tracks) {
    std::string vanished = problemOfSongs(tracks);
    if (!vanished.empty()) {
        return vanished;
    }
    std::string failure = takeFileProblem();
    return failure.empty() ? problemOfSpace(tracks) : failure;
}

} // namespace xbr::host
