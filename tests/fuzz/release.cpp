#include "host/app/headless/commandline/releasefile.h"
#include "tests/fuzz/fuzz.h"

/// A release file is a wish, or a reason in one line.
void fuzz::read(std::string_view input) {
    xbr::host::ReleaseWish wish;
    std::string error;
    const bool isRead = xbr::host::readReleaseFile(fileOf("release.json", input), wish, error);
    expect(isRead ? !wish.songs.empty() && error.empty() : wish.songs.empty() && !error.empty());
    for (const auto& song : wish.songs) {
        expect(!song.path.empty() && song.number >= 0 && song.number <= xbr::host::kMaximumTrackNumber);
    }
}
