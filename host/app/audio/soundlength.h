#pragma once

#include <sndfile.h>

#include <string>

namespace xbr::host {

/// True when the file tells that it once held more audio than is there: libsndfile reads what is left of an
/// AIFF or Ogg file that was cut off as if it were a shorter song.
bool isCutShort(const std::string& path, const SF_INFO& info);

} // namespace xbr::host
