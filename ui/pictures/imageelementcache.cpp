#include "ui/pictures/imageelementcache.h"

#include <algorithm>

namespace brindlex {

namespace {

std::int64_t pixelsOf(const xbr::IImage& image) {
    return std::int64_t{image.pixelWidth()} * image.pixelHeight();
}

} // namespace

ImageElementCache* ImageElementCache::from(xbr::IObject& object) {
    void* found = nullptr;
    if (object.queryInterface(kClassUid, &found) != xbr::kOk) {
        return nullptr;
    }
    object.release(); // the caller's reference is enough
    return static_cast<ImageElementCache*>(found);
}

xbr::Result ImageElementCache::queryInterface(const xbr::Uid& interfaceUid, void** out) noexcept {
    return interfaceUid == kClassUid ? answer(this, out) : Component::queryInterface(interfaceUid, out);
}

std::list<ImageElementCache::Kept>::iterator ImageElementCache::position(std::string_view location,
                                                                         double scale) {
    return std::find_if(m_kept.begin(), m_kept.end(),
                        [&](const Kept& kept) { return kept.scale == scale && kept.location == location; });
}

void ImageElementCache::forget(std::list<Kept>::iterator kept) {
    m_pixels -= pixelsOf(*kept->image);
    m_kept.erase(kept);
}

xbr::Ref<xbr::IImage> ImageElementCache::find(std::string_view location, double scale) {
    const auto kept = position(location, scale);
    if (kept == m_kept.end()) {
        return {};
    }
    m_kept.splice(m_kept.begin(), m_kept, kept);
    return kept->image;
}

void ImageElementCache::keep(std::string_view location, double scale, const xbr::Ref<xbr::IImage>& image) {
    if (const auto old = position(location, scale); old != m_kept.end()) {
        forget(old);
    }
    if (!image || pixelsOf(*image) > kMaximumPixels) {
        return;
    }
    m_pixels += pixelsOf(*image);
    m_kept.push_front({std::string(location), scale, image});
    while (m_pixels > kMaximumPixels) {
        forget(std::prev(m_kept.end()));
    }
}

std::optional<StoredPicture> ImageElementCache::load(std::string_view) {
    return std::nullopt;
}

void ImageElementCache::store(std::string_view, const xbr::CopyTerms&, const std::string&) {}

void ImageElementCache::remove(std::string_view) {}

} // namespace brindlex
