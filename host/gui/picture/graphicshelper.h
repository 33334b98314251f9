#pragma once

#include "framework/abi/graphics.h"
#include "framework/support/objects/object.h"

namespace xbr::host {

class GraphicsHelper final : public Object<IGraphicsHelper, IImageDecoder> {
public:
    Result decodeImage(IStream* stream, IFileType* type, IImage** out) noexcept override;
    Result loadImage(Text url, IImage** out) noexcept override;
    Result createHighResolutionImage(IImage* image, std::int32_t width, std::int32_t height,
                                     IImage** out) noexcept override;
    double displayScale() const noexcept override;
    Result decodeLater(IStream* stream, IFileType* type, std::int64_t maximumPixels,
                       IDecodingTask** out) noexcept override;
};

} // namespace xbr::host
