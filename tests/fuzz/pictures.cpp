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
    static constexpr std::int64_t kMaximumPixels = 10'000;
    xbr::host::Picture picture;
    const auto result = xbr::host::decodePicture(file, extension, kMaximumPixels, picture);
    expect((result == xbr::host::DecodeResult::kDecoded) != picture.pixels.isNull());
    expect(picture.pixels.isNull() || picture.pixels.depth() == 32);
    expect(std::int64_t{picture.pixels.width()} * picture.pixels.height() <= kMaximumPixels * 11 / 10);
}
