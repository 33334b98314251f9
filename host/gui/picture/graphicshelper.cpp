#include "host/gui/picture/graphicshelper.h"

#include "framework/abi/filesystem.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/data/url.h"
#include "framework/support/objects/text.h"
#include "host/gui/picture/image.h"
#include "host/gui/picture/imagedecoder.h"

#include <QGuiApplication>

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

Result decode(IStream& stream, std::string_view extension, IImage** out) {
    const auto file = readFile(stream);
    QImage picture;
    const auto result = file ? decodePicture(*file, extension, picture) : DecodeResult::kUnusable;
    if (result != DecodeResult::kDecoded) {
        return result == DecodeResult::kUnknownFormat ? kNotImplemented : kInvalidArgument;
    }
    const auto pixels = std::make_shared<const Pixels>(std::move(picture));
    *out = make<Image>(pixels, pixels->image().width(), pixels->image().height()).detach();
    return kOk;
}

} // namespace

Result GraphicsHelper::decodeImage(IStream* stream, IFileType* type, IImage** out) noexcept {
    *out = nullptr;
    if (!stream) {
        return kInvalidArgument;
    }
    return decode(*stream, type ? asciiLower(view(type->extension())) : std::string(), out);
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
