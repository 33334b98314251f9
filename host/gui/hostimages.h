#pragma once

#include "framework/abi/graphics.h"

class QImage;

/// What a front end with windows uses of this library's images. Main thread. Modules never use it.
namespace xbr::host {

/// The pixels of an image, with the ratio at which they are shown in its size in points. Null for an image
/// that is not of this library. The pixels are shared as long as nobody changes them.
[[gnu::visibility("default")]] QImage pixelsOf(IImage& image);

} // namespace xbr::host
