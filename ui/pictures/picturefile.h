#pragma once

#include "ui/pictures/imageelementcache.h"

#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// The form in which a picture is kept in a file: lines of what is known about it, then its bytes, guarded by
/// a check sum.
std::string writePicture(const StoredPicture& picture);

/// Reads such a file; nothing when it is damaged or cut short.
std::optional<StoredPicture> readPicture(std::string_view file);

/// The file name for a location: a fixed number of letters and digits, whatever the location is. Two
/// locations may share one, so a file tells whose it is.
std::string pictureFileName(std::string_view location);

} // namespace brindlex
