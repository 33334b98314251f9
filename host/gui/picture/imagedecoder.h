#pragma once

#include <QByteArray>
#include <QImage>

#include <string_view>

namespace xbr::host {

enum class DecodeResult {
    kDecoded,
    kUnknownFormat, ///< not a raster format that is decoded here
    kUnusable,      ///< damaged, cut short, or over the limits
};

/// Decodes the first picture of a file. `extension` names the format in lower case ("jpg"); empty: its first
/// bytes tell. Sizes are read from the header before anything is allocated.
DecodeResult decodePicture(const QByteArray& file, std::string_view extension, QImage& image);

} // namespace xbr::host
