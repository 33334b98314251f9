#pragma once

#include "framework/abi/filetype.h"
#include "framework/abi/stream.h"

namespace xbr {

/// A picture, decoded. Never changes.
struct IImage : IObject {
    static constexpr Uid kUid = uid("4670d4c2-797b-472f-86aa-a1bbd8b9f309");

    /// The size in which it is shown, in points.
    virtual std::int32_t width() const noexcept = 0;
    virtual std::int32_t height() const noexcept = 0;

    /// The size that it was decoded to; that of the file.
    virtual std::int32_t pixelWidth() const noexcept = 0;
    virtual std::int32_t pixelHeight() const noexcept = 0;
};

/// Something that forms show as a picture; asked of a controller or another object of theirs.
///
/// An image source is also an ISubject: "propertyChanged" is signalled when it has another image.
struct IImageSource : IObject {
    static constexpr Uid kUid = uid("e5e3a320-8702-481e-87af-de64b070907c");

    /// The present image, handed over; kFalse and null when there is none.
    virtual Result getImage(IImage** out) noexcept = 0;
};

/// Makes images of files and streams: PNG, JPEG, the first picture of a GIF, and WebP where the host can.
///
/// Whoever made the bytes: a picture of more than 16,777,216 pixels is refused by its header, and so is any
/// while the images that are alive hold 67,108,864 pixels.
struct IGraphicsHelper : IObject {
    static constexpr Uid kUid = uid("4d0733b9-ade1-4748-afb5-dd6fa936b8e9");

    /// Decodes the bytes from the stream's position to its end as a file of that type (null: recognised by
    /// its first bytes), handed over. Its size in points is that in pixels. kInvalidArgument and null: not
    /// such a picture, damaged, cut short, or over the limits; kNotImplemented: another type of file.
    virtual Result decodeImage(IStream* stream, IFileType* type, IImage** out) noexcept = 0;

    /// Decodes a file of the file system, by the type that its name tells. kFalse and null when there is no
    /// such file; otherwise like `decodeImage`.
    virtual Result loadImage(Text url, IImage** out) noexcept = 0;

    /// The same picture to be shown in another size (points, at least 1), handed over; the pixels are shared.
    virtual Result createHighResolutionImage(IImage* image, std::int32_t width, std::int32_t height,
                                             IImage** out) noexcept = 0;

    /// Pixels for each point on the display that has the most; 1.0 without a display.
    virtual double displayScale() const noexcept = 0;
};

} // namespace xbr

/// Answers the one graphics helper. Never null.
XBR_API xbr::IGraphicsHelper* XBRGetGraphicsHelper() noexcept;
