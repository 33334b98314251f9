#include "release/audiofile.h"

#include "framework/abi/filesystem.h"
#include "framework/abi/filetype.h"
#include "framework/support/objects/text.h"

#include <algorithm>

namespace brindlex {

namespace {

std::string fileTypeExtension(const xbr::Url& location) {
    const std::string extension = location.extension();
    xbr::Ref<xbr::IFileType> type;
    const bool known =
        XBRGetFileTypeRegistry()->getTypeByExtension(xbr::toText(extension), type.out()) == xbr::kOk;
    return known ? xbr::toString(type->extension()) : extension;
}

} // namespace

bool isSupportedExtension(std::string_view extension) {
    const std::string lower = xbr::asciiLower(extension);
    return std::find(kAudioExtensions.begin(), kAudioExtensions.end(), lower) != kAudioExtensions.end();
}

bool isSupportedAudioFile(const xbr::Url& location) {
    return location.isLocalFile() && isSupportedExtension(fileTypeExtension(location)) &&
           !XBRGetFileSystem()->folderExists(xbr::toText(location.toString()));
}

} // namespace brindlex
