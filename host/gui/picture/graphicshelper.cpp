#include "host/gui/picture/graphicshelper.h"

#include "framework/abi/filesystem.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/data/url.h"
#include "framework/support/objects/text.h"
#include "host/gui/picture/decodingtask.h"
#include "host/gui/picture/image.h"

#include <QGuiApplication>

#include <limits>
#include <optional>

namespace xbr::host {

namespace {

/// Pictures on their way to a list are some hundred kilobytes.
constexpr qsizetype kMaximumFile = qsizetype{16} << 20U;

std::optional<QByteArray> readFile(IStream& stream) {
    static constexpr qsizetype kPiece = qsizetype{256} << 10U;
    QByteArray file;
    for (std::uint64_t done = kPiece; done == kPiece;) {
        const qsizetype end = file.size();
        file.resize(end + kPiece);
        if (file.size() > kMaximumFile || stream.read(file.data() + end, kPiece, &done) != kOk) {
            return std::nullopt;
        }
        file.resize(end + static_cast<qsizetype>(done));
    }
    return file;
}

std::string extensionOf(IFileType* type) {
    return type ? asciiLower(view(type->extension())) : std::string();
}

Result decode(IStream& stream, std::string_view extension, IImage** out) {
    const auto file = readFile(stream);
    Picture picture;
    const auto decoded =
        file ? decodePicture(*file, extension, std::numeric_limits<std::int64_t>::max(), picture)
             : DecodeResult::kUnusable;
    Ref<IImage> image;
    const Result result = makeImage(decoded, std::move(picture), image);
    *out = image.detach();
    return result;
}

} // namespace

Result GraphicsHelper::decodeImage(IStream* stream, IFileType* type, IImage** out) noexcept {
    *out = nullptr;
    if (!stream) {
        return kInvalidArgument;
    }
    return decode(*stream, extensionOf(type), out);
}

Result GraphicsHelper::decodeLater(IStream* stream, IFileType* type, std::int64_t maximumPixels,
                                   IDecodingTask** out) noexcept {
    *out = nullptr;
    if (!stream || maximumPixels < 1) {
        return kInvalidArgument;
    }
    *out = make<DecodingTask>(readFile(*stream).value_or(QByteArray()), extensionOf(type), maximumPixels)
               .detach();
    return kOk;
}

Result GraphicsHelper::loadImage(Text url, IImage** out) noexcept {
    *out = nullptr;
    Ref<IStream> stream;
    if (XBRGetFileSystem()->openForReading(url, stream.out()) != kOk) {
        return kFalse;
    }
    return decode(*stream, Url(view(url)).extension(), out);
}

Result GraphicsHelper::createHighResolutionImage(IImage* image, std::int32_t width, std::int32_t height,
                                                 IImage** out) noexcept {
    *out = nullptr;
    const Image* own = image ? Image::from(*image) : nullptr;
    if (!own || width < 1 || height < 1) {
        return kInvalidArgument;
    }
    *out = make<Image>(own->pixels(), width, height).detach();
    return kOk;
}

double GraphicsHelper::displayScale() const noexcept {
    const auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    return application ? application->devicePixelRatio() : 1.0;
}

} // namespace xbr::host

xbr::IGraphicsHelper* XBRGetGraphicsHelper() noexcept {
    // Never destroyed: modules may still call while the process ends.
    static auto* const helper = xbr::make<xbr::host::GraphicsHelper>().detach();
    return helper;
}
