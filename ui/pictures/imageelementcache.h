#pragma once

#include "framework/abi/download.h"
#include "framework/abi/graphics.h"
#include "framework/support/parts/component.h"

#include <cstdint>
#include <list>
#include <optional>
#include <string>
#include <string_view>

namespace brindlex {

/// A picture as it was fetched.
struct StoredPicture {
    std::string location;
    std::string entityTag;    ///< for asking the server whether it has changed; may be empty
    std::string lastModified; ///< as well
    std::string bytes;
};

/// Keeps pictures in memory, as long as there is room: of those that were not wanted for longest the first
/// go.
class ImageElementCache : public xbr::Component {
public:
    /// The class itself, for telling a cache from other objects that are handed in.
    static constexpr xbr::Uid kClassUid = xbr::uid("8f1bd8a2-6e3a-4dd5-8f5b-1f2c6f0c1d5e");

    /// Sixteen pictures of the news: a few more than are near what is seen.
    static constexpr std::int64_t kMaximumPixels = std::int64_t{2} << 20U;

    ImageElementCache() : Component("ImageElementCache") {}

    /// The cache behind an object; null when it is another kind of object. Borrowed.
    static ImageElementCache* from(xbr::IObject& object);

    /// The image that was kept for a location and a scale; empty when there is none.
    xbr::Ref<xbr::IImage> find(std::string_view location, double scale);

    /// Keeps an image; null forgets it.
    void keep(std::string_view location, double scale, const xbr::Ref<xbr::IImage>& image);

    /// What is stored for a location beyond the run. Memory alone stores nothing.
    virtual std::optional<StoredPicture> load(std::string_view location);

    /// Stores a picture on the server's terms.
    virtual void store(std::string_view location, const xbr::CopyTerms& terms, const std::string& bytes);
    virtual void remove(std::string_view location);

    xbr::Result queryInterface(const xbr::Uid& interfaceUid, void** out) noexcept override;

protected:
    explicit ImageElementCache(std::string_view name) : Component(name) {}

private:
    struct Kept {
        std::string location;
        double scale;
        xbr::Ref<xbr::IImage> image;
    };

    std::list<Kept>::iterator position(std::string_view location, double scale);
    void forget(std::list<Kept>::iterator kept);

    std::list<Kept> m_kept; ///< the one that was wanted last in front
    std::int64_t m_pixels = 0;
};

} // namespace brindlex
