#include "host/gui/picture/imagedecoder.h"

#include "host/gui/picture/image.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <utility>

namespace xbr::host {

namespace {

constexpr std::int64_t kMaximumPixels = std::int64_t{16} << 20U;

/// A progressive JPEG repaints the whole picture with each of its scans, which cost next to nothing in the
/// file: usual ones have ten, and their previews a few more.
constexpr qsizetype kMaximumScans = 64;

struct Format {
    std::string_view extension;
    const char* name; ///< as the image library calls it
};

constexpr std::array<Format, 6> kFormats = {
    {{"png", "png"}, {"jpg", "jpeg"}, {"jpeg", "jpeg"}, {"jpe", "jpeg"}, {"gif", "gif"}, {"webp", "webp"}}};

QByteArray formatOfExtension(std::string_view extension) {
    const auto* found = std::find_if(kFormats.begin(), kFormats.end(),
                                     [&](const Format& format) { return format.extension == extension; });
    return found == kFormats.end() ? QByteArray() : QByteArray(found->name);
}

QByteArray formatOfContents(const QByteArray& file) {
    static const std::pair<QByteArray, const char*> kMarks[] = {
        {QByteArray("\x89PNG\r\n\x1a\n", 8), "png"}, {QByteArray("\xFF\xD8\xFF"), "jpeg"}, {"GIF8", "gif"}};
    for (const auto& [mark, name] : kMarks) {
        if (file.startsWith(mark)) {
            return name;
        }
    }
    return file.startsWith("RIFF") && file.mid(8, 4) == "WEBP" ? QByteArray("webp") : QByteArray();
}

/// What the decoder does not look after. A JPEG that was cut off it fills with grey.
bool isSoundJpeg(const QByteArray& file) {
    static const QByteArray kScan("\xFF\xDA");
    static const QByteArray kEnd("\xFF\xD9");
    return file.count(kScan) <= kMaximumScans && file.lastIndexOf(kEnd) > file.lastIndexOf(kScan);
}

bool isWithinLimits(const QSize& size) {
    const std::int64_t count = std::int64_t{size.width()} * size.height();
    return size.width() > 0 && size.height() > 0 && count <= kMaximumPixels && Pixels::hasRoomFor(count);
}

/// 32 bits for each pixel, whatever the file had.
QImage normalised(const QImage& image) {
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}

} // namespace

DecodeResult decodePicture(const QByteArray& file, std::string_view extension, QImage& image) {
    const QByteArray format = extension.empty() ? formatOfContents(file) : formatOfExtension(extension);
    if (format.isEmpty() || !QImageReader::supportedImageFormats().contains(format)) {
        return DecodeResult::kUnknownFormat;
    }
    QBuffer buffer;
    buffer.setData(file);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    const bool isSound = format != "jpeg" || isSoundJpeg(file);
    if (!isSound || !isWithinLimits(reader.size())) {
        return DecodeResult::kUnusable;
    }
    const QImage decoded = reader.read();
    if (!isWithinLimits(decoded.size())) {
        return DecodeResult::kUnusable;
    }
    image = normalised(decoded);
    return DecodeResult::kDecoded;
}

} // namespace xbr::host
