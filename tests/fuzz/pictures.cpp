#include "host/gui/picture/imagedecoder.h"
#include "tests/fuzz/fuzz.h"

#include <iterator>

namespace {

constexpr std::string_view kExtensions[] = {"", "png", "jpg", "gif", "webp"};

} // namespace

/// Pictures of the news: decoded within the limits, or not at all.
void fuzz::read(std::string_view input) {
    const auto extension = kExtensions[takeChoice(input) % std::size(kExtensions)];
    const QByteArray file(input.data(), static_cast<qsizetype>(input.size()));
    QImage image;
    const auto result = xbr::host::decodePicture(file, extension, image);
    expect((result == xbr::host::DecodeResult::kDecoded) != image.isNull());
    expect(image.isNull() || image.depth() == 32);
}
