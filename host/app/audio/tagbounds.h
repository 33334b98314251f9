#pragma once

#include "host/app/audio/mediasignature.h"

#include <string>

namespace xbr::host {

/// True when reading the tags of a file takes bounded time and memory. A few bytes of a hostile file can
/// claim gigabytes of tags, or hold compressed ones that grow a thousandfold; the tag library believes them.
/// Takes bounded time and memory itself.
bool areTagsBounded(const std::string& path, MediaKind kind);

/// The same for AIFF and Ogg files; false for any other.
bool areForeignTagsBounded(const std::string& path);

} // namespace xbr::host
