#pragma once

#include "host/app/audio/rendering.h"
#include "host/app/modules/gadgetpanel.h"
#include "host/app/modules/publishentry.h"
#include "host/app/publishing/plan.h"

#include <string>
#include <vector>

namespace xbr::host {

/// What a panel and a publish entry offer.
Offer offerOf(GadgetPanel& panel, const PublishEntry& entry);

/// A file that a panel was given.
struct HandedSong {
    std::string file;   ///< path of what the module got
    std::string source; ///< path of the file that the user chose
};

/// Puts the songs of a plan into a panel: renders those that the module does not take, and passes on what the
/// plan says of them. Runs the event loop while songs are rendered. Those that were.
Outcome<std::vector<HandedSong>> handOver(const Plan& plan, GadgetPanel& panel, const PublishEntry& entry,
                                          RenderedSongs& rendered);

} // namespace xbr::host
