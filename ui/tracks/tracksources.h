#pragma once

#include "framework/support/data/url.h"
#include "ui/tracks/trackitem.h"
#include "ui/tracks/trackpropertycomponent.h"

namespace brindlex {

/// The location of a supported audio file that an object stands for; empty when it stands for none.
xbr::Url audioLocationOf(xbr::IObject& object);

/// A track made from an audio file: titled by its tag or else its file name without extension, with the tag's
/// genre. A file whose tags cannot be read becomes a track all the same.
xbr::Ref<TrackItem> makeTrackFromFile(const xbr::Url& file, UploadMode mode);

} // namespace brindlex
