#pragma once

#include "framework/support/data/attributes.h"
#include "host/app/audio/rendering.h"
#include "host/app/modules/gadgetpanel.h"
#include "host/app/modules/publishentry.h"
#include "host/app/publishing/genrelist.h"
#include "host/app/publishing/publishresult.h"
#include "host/app/publishing/release.h"

#include <cstdint>
#include <string>
#include <vector>

namespace xbr::host {

/// Whether songs that have to be rendered are, or only looked at.
enum class Rendering : std::uint8_t { kDo, kPretend };

/// A song as the module got it.
struct TakenSong {
    std::string source; ///< path of the file that the user chose
    std::string file;   ///< path of the file that the module got
    bool isRendered = false;
    std::string genre; ///< that it was handed over with; may be empty
};

/// Hands the songs of a plan to a module's publish entry: asks it which types of files it takes, renders the
/// others to WAV, and passes on tags and what the user says instead of them. Rendered files go with this
/// object.
class ReleaseIntake {
public:
    explicit ReleaseIntake(GadgetPanel& panel, Rendering rendering = Rendering::kDo)
        : m_panel(&panel),
          m_rendering(rendering) {}

    struct Outcome {
        PublishResult result = PublishResult::kDone; ///< kDone: the panel's list holds the songs
        std::string detail;
    };

    /// Does all of it; runs the event loop while songs are rendered. Once.
    Outcome take(const ReleaseWish& plan);

    /// The songs, in the order of the panel's list.
    const std::vector<TakenSong>& songs() const { return m_songs; }

    /// The file that the user chose, as a URL, for the location of a track.
    std::string sourceOf(const std::string& url) const;

private:
    Outcome check(const ReleaseWish& plan);
    Outcome checkGenres(const ReleaseWish& plan, const GenreList& genres);
    std::string look(IPublisher& publisher, TakenSong& song) const;
    Outcome render();
    Ref<Attributes> mediaOf(const ReleaseWish& plan, std::size_t index);
    Outcome publish(IPublisher& publisher, const ReleaseWish& plan);
    void dropForeignGenres();

    GadgetPanel* m_panel;
    Rendering m_rendering;
    RenderedSongs m_rendered;
    std::vector<TakenSong> m_songs;
    std::vector<std::string> m_genres; ///< of the plan's songs, spelled as the panel does; empty: the tags'
};

} // namespace xbr::host
