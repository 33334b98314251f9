#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>

#include <cstdint>
#include <string_view>

namespace xbr::host {

enum class DecodeResult {
    kDecoded,
    kUnknownFormat, ///< not a raster format that is decoded here
    kUnusable,      ///< damaged, cut short, or too large
    kNoRoom,        ///< too many pixels are alive
};

struct Picture {
    QImage pixels;
    QSize size; ///< of the file
};

/// Decodes the first picture of a file, to so many pixels at most. `extension` names the format in lower case
/// ("jpg"); empty: its first bytes tell. Sizes are read from the header before anything is allocated. On any
/// thread.
DecodeResult decodePicture(const QByteArray& file, std::string_view extension, std::int64_t maximumPixels,
                           Picture& picture);

} // namespace xbr::host
