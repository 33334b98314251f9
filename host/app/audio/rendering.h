#pragma once

#include "host/base/problem.h"

#include <functional>
#include <string>

namespace xbr::host {

/// Is told the fraction that is done, some times a second; false gives the work up. May run the event loop.
using RenderProgress = std::function<bool(double fraction)>;

/// Writes the audio of `from`, which may be anything that libsndfile reads, as a WAV file `to`, with the same
/// rate, channels and depth; no tags. When it does not come to its end no file is left, and the problem says
/// why: kCancelled, or in words that follow the name of the song.
Outcome<void> renderToWav(const std::string& from, const std::string& to, const RenderProgress& goOn);

/// WAV files that were rendered from songs, in the host's private temporary folder. They go with this object.
class RenderedSongs {
public:
    RenderedSongs();
    RenderedSongs(const RenderedSongs&) = delete;
    RenderedSongs& operator=(const RenderedSongs&) = delete;
    ~RenderedSongs();

    /// The path for a rendering; its name has to be unlike all others.
    std::string pathOf(const std::string& fileName) const { return m_folder + "/" + fileName; }

    /// Renders a song to such a path. Tells the progress through the front end's progress
    /// indicator, where the user may cancel it; runs the event loop meanwhile.
    Outcome<void> render(const std::string& song, const std::string& path);

private:
    std::string m_folder; ///< empty when there is no temporary folder
};

} // namespace xbr::host
