#pragma once

#include "framework/abi/graphics.h"
#include "framework/abi/message.h"
#include "framework/support/objects/object.h"
#include "host/gui/picture/imagedecoder.h"

#include <QByteArray>

#include <memory>
#include <string>

namespace xbr::host {

/// Makes an image of what was decoded; answers what IGraphicsHelper::decodeImage does.
Result makeImage(DecodeResult decoded, Picture picture, Ref<IImage>& image);

/// Decodes a file on a thread of its own, one file after the other: a list may show many new pictures at
/// once, and what is behind them shall go on.
class DecodingTask final : public Object<IDecodingTask, ISubject> {
public:
    DecodingTask(QByteArray file, std::string extension, std::int64_t maximumPixels);
    ~DecodingTask() override;

    Result getImage(IImage** out) noexcept override;

private:
    struct Work;

    void finish();

    std::shared_ptr<Work> m_work;
    Result m_result = kFalse;
    Ref<IImage> m_image;
};

} // namespace xbr::host
