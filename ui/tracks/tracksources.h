#pragma once

#include "framework/support/data/url.h"
#include "framework/support/objects/object.h"
#include "ui/tracks/trackediting.h"
#include "ui/tracks/trackitem.h"

namespace brindlex {

/// The location of a supported audio file that an object stands for; empty when it stands for none.
xbr::Url audioLocationOf(xbr::IObject& object);

/// A track made from an audio file: titled by its tag or else its file name without extension, with the tag's
/// genre. A file whose tags cannot be read becomes a track all the same.
xbr::Ref<TrackItem> makeTrackFromFile(const xbr::Url& file);

/// Lets the user choose audio files and answers them in the dialog's order; null when the user cancelled.
xbr::Ref<xbr::ObjectList> chooseTrackFiles();

} // namespace brindlex
