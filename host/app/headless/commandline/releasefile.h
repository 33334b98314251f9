#pragma once

#include "host/app/publishing/release.h"

#include <string>

namespace xbr::host {

/// Reads a release file: a JSON object (RFC 8259) with
///
/// - "album": an object that makes the songs one release, with the texts "title" and "artist"; without it
///   each song is a release of its own;
/// - "genre": a text, for every release;
/// - "songs": an array of at least one object, each with "file" and, if wanted, the texts "title", "artist"
///   and (of a single) "genre", and the integer "trackNumber".
///
/// Only "songs" and "file" have to be there. Files are relative to the folder of the release file. Unknown
/// and repeated keys are errors, so that a slip of the pen does not publish something else than was meant.
///
/// False, with the reason in one line, when the file cannot be read or says something else.
bool readReleaseFile(const std::string& path, ReleaseWish& plan, std::string& error);

} // namespace xbr::host
