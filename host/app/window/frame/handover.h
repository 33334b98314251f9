#pragma once

#include "host/app/modules/publishentry.h"
#include "host/app/publishing/song.h"
#include "host/app/window/panels/panelnotices.h"

#include <vector>

namespace xbr::host {

/// Hands songs of the list over to a panel, and asks before that loses something. What to tell the user; of
/// the kind kNone when the user would rather not.
Notice handOverSongs(DialogPlace& place, PanelNotices& panel, const PublishEntry& entry,
                     std::vector<SongFile> songs);

} // namespace xbr::host
