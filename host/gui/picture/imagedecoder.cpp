#include "host/gui/picture/imagedecoder.h"

#include "host/gui/picture/image.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <array>
#include <cmath>
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

/// Walks over the parts of a file.
class Walk {
public:
    Walk(const QByteArray& file, qsizetype start) : m_file(file), m_place(start) {}

    bool isInside() const { return m_place < m_file.size(); }

    /// The byte so far ahead; -1 beyond the end.
    int at(qsizetype ahead = 0) const {
        return m_place + ahead < m_file.size() ? static_cast<unsigned char>(m_file[m_place + ahead]) : -1;
    }
    void skip(qsizetype count) { m_place += count; }

    /// Goes to the next byte of that value, or to the end.
    void find(char byte) {
        const auto found = m_file.indexOf(byte, m_place);
        m_place = found < 0 ? m_file.size() : found;
    }

private:
    const QByteArray& m_file;
    qsizetype m_place;
};

// What the decoders do not look after: of a file that was cut off they show what is there, and the rest grey.

bool isSoundJpeg(const QByteArray& file) {
    enum Marker {
        kNone = 0x00,
        kPrivate = 0x01,
        kFirstRestart = 0xD0,
        kStart = 0xD8,
        kEnd = 0xD9,
        kScan = 0xDA,
        kFill = 0xFF
    };
    int scans = 0;
    Walk walk(file, 0);
    for (walk.find('\xFF'); walk.isInside(); walk.find('\xFF')) {
        const int marker = walk.at(1);
        const bool isAlone =
            marker == kNone || marker == kPrivate || (marker >= kFirstRestart && marker <= kStart);
        if (marker == kEnd) {
            return true;
        }
        scans += marker == kScan ? 1 : 0;
        if (scans > kMaximumScans) {
            return false;
        }
        const int length = 256 * walk.at(2) + walk.at(3);
        walk.skip(marker == kFill ? 1 : isAlone ? 2 : std::max(length, 2) + 2);
    }
    return false;
}

/// The bytes of a table of colours, by the flags that announce it.
qsizetype colourTable(int flags) {
    return (flags & 0x80) != 0 ? qsizetype{3} << ((flags & 7) + 1) : 0;
}

bool isSoundGif(const QByteArray& file) {
    enum Block { kExtension = 0x21, kPicture = 0x2C };
    static constexpr qsizetype kHeader = 13;
    static constexpr qsizetype kPictureHeader = 10;
    Walk walk(file, kHeader + colourTable(file.size() < kHeader ? 0 : file[kHeader - 3]));
    for (;;) {
        const int block = walk.at();
        if (block != kExtension && block != kPicture) {
            return false;
        }
        walk.skip(block == kPicture ? kPictureHeader + colourTable(walk.at(kPictureHeader - 1)) + 1 : 2);
        while (walk.at() > 0) {
            walk.skip(walk.at() + 1);
        }
        if (walk.at() < 0 || block == kPicture) {
            return walk.at() == 0;
        }
        walk.skip(1);
    }
}

bool isSound(const QByteArray& file, const QByteArray& format) {
    return format == "jpeg" ? isSoundJpeg(file) : format != "gif" || isSoundGif(file);
}

std::int64_t countOf(const QSize& size) {
    return size.isValid() ? std::int64_t{size.width()} * size.height() : 0;
}

/// A size of as much the same shape as can be that has no more pixels.
QSize reduced(const QSize& size, std::int64_t maximumPixels) {
    const double factor = std::sqrt(static_cast<double>(maximumPixels) / static_cast<double>(countOf(size)));
    const QSize near = (QSizeF(size) * factor).toSize().expandedTo(QSize(1, 1));
    // Of a picture like a hair one side stays a pixel wide.
    const auto width =
        static_cast<int>(std::clamp<std::int64_t>(maximumPixels / near.height(), 1, near.width()));
    return {width, static_cast<int>(std::min<std::int64_t>(near.height(), maximumPixels / width))};
}

/// 32 bits for each pixel, whatever the file had.
QImage normalised(const QImage& image) {
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}

} // namespace

DecodeResult decodePicture(const QByteArray& file, std::string_view extension, std::int64_t maximumPixels,
                           Picture& picture) {
    const QByteArray format = extension.empty() ? formatOfContents(file) : formatOfExtension(extension);
    if (format.isEmpty() || !QImageReader::supportedImageFormats().contains(format)) {
        return DecodeResult::kUnknownFormat;
    }
    QBuffer buffer;
    buffer.setData(file);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (countOf(size) == 0 || countOf(size) > kMaximumPixels || !isSound(file, format)) {
        return DecodeResult::kUnusable;
    }
    if (!Pixels::hasRoomFor(std::min(countOf(size), maximumPixels))) {
        return DecodeResult::kNoRoom;
    }
    if (countOf(size) > maximumPixels) {
        reader.setScaledSize(reduced(size, maximumPixels));
    }
    const bool isTurned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    QImage decoded = reader.read();
    if (decoded.isNull() || countOf(decoded.size()) > kMaximumPixels) {
        return DecodeResult::kUnusable;
    }
    if (countOf(decoded.size()) > maximumPixels) { // a GIF's frame may say less than its screen
        decoded = decoded.scaled(reduced(decoded.size(), maximumPixels));
    }
    picture = {normalised(decoded), isTurned ? size.transposed() : size};
    return DecodeResult::kDecoded;
}

} // namespace xbr::host
