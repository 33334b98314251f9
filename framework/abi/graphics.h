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

    /// The size that it was decoded to: that of the file, or less if less was asked for.
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

/// An image source that has its image only while somebody shows it; asked of an image source.
struct IShownImage : IObject {
    static constexpr Uid kUid = uid("5d1c4f0e-3a0b-4c8e-9a57-2f7c1b6e9d42");

    /// Somebody shows it from now on, as `getImage` answers it and "propertyChanged" tells that it came.
    virtual void beginShowing() noexcept = 0;

    /// One of those who began shows it no more. After the last the image may go.
    virtual void endShowing() noexcept = 0;

    /// True while the image is there or may still come: its place is kept free.
    virtual bool mayHaveImage() const noexcept = 0;
};

/// Makes images of files and streams: PNG, JPEG, the first picture of a GIF, and WebP where the host can.
///
/// Whoever made the bytes: a picture of more than 16,777,216 pixels is refused by its header. While the
/// images that are alive hold 67,108,864 pixels there is no room for more.
struct IGraphicsHelper : IObject {
    static constexpr Uid kUid = uid("4d0733b9-ade1-4748-afb5-dd6fa936b8e9");

    /// Decodes the bytes from the stream's position to its end as a file of that type (null: recognised by
    /// its first bytes), handed over. Its size in points is that in pixels. kInvalidArgument and null: not
    /// such a picture, damaged, cut short, or too large; kNotImplemented: another type of file; kUnexpected:
    /// there is no room for it now.
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

/// A picture that is decoded beside the event loop. One-shot.
///
/// A task is also an ISubject: "decoded" comes from the event loop, never inside `decodeLater`, when there is
/// an image or will be none. Releasing the last reference ends the work without a message.
struct IDecodingTask : IObject {
    static constexpr Uid kUid = uid("c3b6c0b4-8a55-4ea4-9c0f-7f4f5b0a6c1e");

    /// The image, handed over. kFalse and null before "decoded" is sent; otherwise null and what
    /// `decodeImage` would answer.
    virtual Result getImage(IImage** out) noexcept = 0;
};

/// Decodes pictures that are shown small; asked of the graphics helper.
struct IImageDecoder : IObject {
    static constexpr Uid kUid = uid("0f6a4d0c-4f6b-4a4e-9d43-6a3f5e2b7c90");

    /// Begins to decode what `decodeImage` would, handed over. A picture of more than `maximumPixels` (at
    /// least 1) is made smaller; its size in points stays that of the file. The stream is read before this
    /// returns.
    virtual Result decodeLater(IStream* stream, IFileType* type, std::int64_t maximumPixels,
                               IDecodingTask** out) noexcept = 0;
};

} // namespace xbr

/// Answers the one graphics helper. Never null.
XBR_API xbr::IGraphicsHelper* XBRGetGraphicsHelper() noexcept;
