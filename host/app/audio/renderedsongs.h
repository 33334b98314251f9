#pragma once

#include "host/app/audio/render.h"

#include <set>
#include <string>

namespace xbr::host {

/// WAV files that were rendered from songs, in the host's private temporary folder. They go with this object.
class RenderedSongs {
public:
    RenderedSongs();
    RenderedSongs(const RenderedSongs&) = delete;
    RenderedSongs& operator=(const RenderedSongs&) = delete;
    ~RenderedSongs();

    /// Takes a name that a rendered song may not have, because a song beside it has it.
    void reserve(const std::string& fileName) { m_names.insert(fileName); }

    /// The path at which the rendering of a song goes: named like the song, and unlike all others.
    std::string choosePath(const std::string& song);

    /// Renders a song to a path that was chosen. Tells the progress through the front end's progress
    /// indicator, where the user may cancel it; runs the event loop meanwhile.
    RenderResult render(const std::string& song, const std::string& path, std::string& error);

private:
    std::string m_folder; ///< empty when there is no temporary folder
    std::set<std::string> m_names;
};

} // namespace xbr::host
