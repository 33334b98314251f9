#include "host/gui/picture/image.h"

#include <atomic>

namespace xbr::host {

namespace {

std::atomic<std::int64_t> g_alive = 0;

std::int64_t countOf(const QImage& image) {
    return std::int64_t{image.width()} * image.height();
}

} // namespace

Pixels::Pixels(QImage image) : m_image(std::move(image)) {
    g_alive += countOf(m_image);
}

Pixels::~Pixels() {
    g_alive -= countOf(m_image);
}

bool Pixels::hasRoomFor(std::int64_t count) {
    return g_alive + count <= kMaximumAlive;
}

Image* Image::from(IImage& image) {
    void* found = nullptr;
    if (image.queryInterface(kClassUid, &found) != kOk) {
        return nullptr;
    }
    image.release(); // the caller's reference is enough
    return static_cast<Image*>(found);
}

Result Image::queryInterface(const Uid& interfaceUid, void** out) noexcept {
    return interfaceUid == kClassUid ? answer(this, out) : Object<IImage>::queryInterface(interfaceUid, out);
}

QImage pixelsOf(IImage& image) {
    const Image* own = Image::from(image);
    return own ? own->pixels()->image() : QImage();
}

} // namespace xbr::host
