#pragma once

#include "framework/abi/graphics.h"
#include "framework/support/objects/object.h"

#include <QImage>

#include <memory>

namespace xbr::host {

/// Pixels in memory, counted together with those of all other images that are alive. On any thread.
class Pixels {
public:
    /// Images from outside are many, and small files may be large pictures: together they may hold 256 MiB.
    static constexpr std::int64_t kMaximumAlive = std::int64_t{64} << 20U;

    explicit Pixels(QImage image);
    Pixels(const Pixels&) = delete;
    Pixels& operator=(const Pixels&) = delete;
    ~Pixels();

    const QImage& image() const { return m_image; }

    /// True when so many more may come.
    static bool hasRoomFor(std::int64_t count);

private:
    QImage m_image;
};

class Image final : public Object<IImage> {
public:
    /// The library's own mark, for telling its images from foreign ones.
    static constexpr Uid kClassUid = uid("4ab45763-90b3-4d11-8a08-93f2f0fa2c45");

    Image(std::shared_ptr<const Pixels> pixels, std::int32_t width, std::int32_t height)
        : m_pixels(std::move(pixels)),
          m_width(width),
          m_height(height) {}

    /// The image behind an interface; null when it is not of this library. Borrowed.
    static Image* from(IImage& image);

    Result queryInterface(const Uid& interfaceUid, void** out) noexcept override;
    std::int32_t width() const noexcept override { return m_width; }
    std::int32_t height() const noexcept override { return m_height; }
    std::int32_t pixelWidth() const noexcept override { return m_pixels->image().width(); }
    std::int32_t pixelHeight() const noexcept override { return m_pixels->image().height(); }

    const std::shared_ptr<const Pixels>& pixels() const { return m_pixels; }

private:
    std::shared_ptr<const Pixels> m_pixels;
    std::int32_t m_width;
    std::int32_t m_height;
};

/// For front ends with windows: the pixels of an image, whatever its size in points. Null for an image that
/// is not of this library. They are shared with it as long as nobody changes them or what is known of them,
/// the ratio of a device for one.
[[gnu::visibility("default")]] QImage pixelsOf(IImage& image);

} // namespace xbr::host
