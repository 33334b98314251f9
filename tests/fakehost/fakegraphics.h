#pragma once

#include "framework/abi/graphics.h"
#include "framework/support/objects/object.h"

#include <string>
#include <vector>

namespace fakehost {

/// Decodes "pictures" that are their size in words, such as "320x180". Any other bytes are no picture.
class FakeGraphicsHelper final : public xbr::Object<xbr::IGraphicsHelper, xbr::IImageDecoder> {
public:
    xbr::Result decodeImage(xbr::IStream* stream, xbr::IFileType* type, xbr::IImage** out) noexcept override;
    xbr::Result loadImage(xbr::Text url, xbr::IImage** out) noexcept override;
    xbr::Result createHighResolutionImage(xbr::IImage* image, std::int32_t width, std::int32_t height,
                                          xbr::IImage** out) noexcept override;
    double displayScale() const noexcept override { return scale; }
    xbr::Result decodeLater(xbr::IStream* stream, xbr::IFileType* type, std::int64_t maximumPixels,
                            xbr::IDecodingTask** out) noexcept override;

    /// Ends the decoding that was held, and runs what follows from it.
    void endDecoding();

    double scale = 1.0;
    bool holdsDecoding = false; ///< until `endDecoding`
    bool hasRoom = true;
    std::vector<xbr::Ref<xbr::ISubject>> held;
    std::vector<std::string> decoded; ///< the extensions of the types as which streams were decoded
};

} // namespace fakehost
