#include "release/audiofile.h"

#include "framework/abi/filesystem.h"
#include "framework/support/objects/text.h"

#include <algorithm>

namespace brindlex {

bool isSupportedExtension(std::string_view extension) {
    const std::string lower = xbr::asciiLower(extension);
    return std::find(kAudioExtensions.begin(), kAudioExtensions.end(), lower) != kAudioExtensions.end();
}

bool isSupportedAudioFile(const xbr::Url& location) {
    return location.isLocalFile() && isSupportedExtension(location.extension()) &&
           !XBRGetFileSystem()->folderExists(xbr::toText(location.toString()));
}

} // namespace brindlex
