#pragma once

#include "host/app/publishing/verdict/songverdict.h"

namespace xbr::host {

/// Fills in the folder for copies, how much room the tracks need in there, and how much there is.
void measureSpace(UploadFacts& facts);

/// Modules say nothing of songs that they could not prepare: adds the reasons that can be seen still. After
/// `measureSpace`.
void findReasons(UploadFacts& facts);

} // namespace xbr::host
