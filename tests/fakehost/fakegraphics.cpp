#include "tests/fakehost/fakegraphics.h"

#include "framework/support/data/memorystream.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "tests/fakehost/fakehost.h"

#include <sstream>

namespace fakehost {

namespace {

struct Size {
    std::int32_t width = 0;
    std::int32_t height = 0;
};

class Image final : public xbr::Object<xbr::IImage> {
public:
    Image(Size size, Size pixels) : m_size(size), m_pixels(pixels) {}
    std::int32_t width() const noexcept override { return m_size.width; }
    std::int32_t height() const noexcept override { return m_size.height; }
    std::int32_t pixelWidth() const noexcept override { return m_pixels.width; }
    std::int32_t pixelHeight() const noexcept override { return m_pixels.height; }

private:
    Size m_size;
    Size m_pixels;
};

/// Has its answer from the start, and tells of it with the next turn.
class DecodingTask final : public xbr::Object<xbr::IDecodingTask, xbr::ISubject> {
public:
    ~DecodingTask() override { XBRGetSignalHandler()->forgetSubject(this); }

    xbr::Result getImage(xbr::IImage** out) noexcept override {
        *out = xbr::Ref<xbr::IImage>(image).detach();
        return result;
    }

    xbr::Result result = xbr::kFalse;
    xbr::Ref<xbr::IImage> image;
};

xbr::Result decode(const std::string& bytes, xbr::IImage** out) {
    std::istringstream text(bytes);
    Size size;
    char times = '\0';
    text >> size.width >> times >> size.height;
    *out = text && times == 'x' ? xbr::make<Image>(size, size).detach() : nullptr;
    return *out ? xbr::kOk : xbr::kInvalidArgument;
}

} // namespace

xbr::Result FakeGraphicsHelper::decodeImage(xbr::IStream* stream, xbr::IFileType* type,
                                            xbr::IImage** out) noexcept {
    decoded.push_back(type ? xbr::toString(type->extension()) : "(none)");
    return decode(xbr::readAll(*stream), out);
}

xbr::Result FakeGraphicsHelper::decodeLater(xbr::IStream* stream, xbr::IFileType* type, std::int64_t,
                                            xbr::IDecodingTask** out) noexcept {
    auto task = xbr::make<DecodingTask>();
    task->result = hasRoom ? decodeImage(stream, type, task->image.out()) : xbr::kUnexpected;
    held.push_back(xbr::query<xbr::ISubject>(task.get()));
    if (!holdsDecoding) {
        xbr::postSignal(*std::exchange(held, {}).front(), "decoded");
    }
    *out = task.detach();
    return xbr::kOk;
}

void FakeGraphicsHelper::endDecoding() {
    holdsDecoding = false;
    for (const auto& task : std::exchange(held, {})) {
        xbr::signal(*task, "decoded");
    }
    host().signals.pump();
}

xbr::Result FakeGraphicsHelper::loadImage(xbr::Text url, xbr::IImage** out) noexcept {
    const auto found = host().files.files.find(xbr::toString(url));
    *out = nullptr;
    return found == host().files.files.end() ? xbr::kFalse : decode(found->second, out);
}

xbr::Result FakeGraphicsHelper::createHighResolutionImage(xbr::IImage* image, std::int32_t width,
                                                          std::int32_t height, xbr::IImage** out) noexcept {
    *out = xbr::make<Image>(Size{width, height}, Size{image->pixelWidth(), image->pixelHeight()}).detach();
    return xbr::kOk;
}

} // namespace fakehost
