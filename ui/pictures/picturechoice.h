#pragma once

#include "framework/abi/feed.h"

#include <cstdint>
#include <optional>
#include <string>

namespace brindlex {

/// The picture of an entry.
struct PictureChoice {
    std::string location;
    std::string mimeType;
    double scale = 1.0; ///< pixels for each point
};

/// Chooses among the entry's enclosures. On a display of more than one pixel for a point the first image of
/// the device pixel ratio "2x" is taken, with scale 2; otherwise the first enclosure, if it is an image.
std::optional<PictureChoice> choosePicture(const xbr::IFeedEntry& entry, double displayScale);

/// The size in points of a picture of so many pixels. Sizes that are not whole are rounded up, so that
/// nothing is cut off, unless the fraction is as good as nothing.
std::int32_t logicalSize(std::int32_t pixels, double scale);

} // namespace brindlex
