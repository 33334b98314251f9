#pragma once

#include "framework/support/objects/objectlist.h"

namespace brindlex {

/// Lets the user choose audio files and answers them in the dialog's order; empty when nothing was chosen.
xbr::Ref<xbr::ObjectList> chooseTrackFiles();

} // namespace brindlex
