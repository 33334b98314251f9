#pragma once

#include "host/app/audio/mediasignature.h"

#include <taglib/tpropertymap.h>

#include <string>

namespace xbr::host {

/// The tags of a file, by TagLib's names: those of the kind, or with kUnknown those of an AIFF or Ogg file.
/// A few bytes of a hostile file can claim gigabytes of tags, or hold compressed ones that grow a
/// thousandfold, and TagLib believes them: what it is given here is bounded. Tags beyond that are left out.
TagLib::PropertyMap readProperties(const std::string& path, MediaKind kind);

} // namespace xbr::host
