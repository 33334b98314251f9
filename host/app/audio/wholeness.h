#pragma once

#include "host/base/problem.h"

#include <sndfile.h>

#include <string>

namespace xbr::host {

constexpr const char* kDamaged = "is damaged: a part of the audio is missing";

/// Compares what a file says with what it holds, and with what recordings can be. Counts `info.frames` where
/// the header does not say how many there are. `opened` is at its start then.
Problem checkWhole(const std::string& path, SNDFILE* opened, SF_INFO& info);

/// True when a file that the library refuses is the start of one with audio.
bool isHeaderOnly(const std::string& path);

} // namespace xbr::host
