#include "ui/pictures/picturechoice.h"

#include "framework/support/objects/text.h"

#include <cmath>

namespace brindlex {

namespace {

constexpr double kHighResolution = 2.0;

std::string attribute(const xbr::IFeedEntry& entry, std::int32_t link, std::string_view name) {
    return xbr::toString(entry.linkAttribute(link, xbr::toText(name)));
}

bool isEnclosure(const xbr::IFeedEntry& entry, std::int32_t link) {
    return attribute(entry, link, "rel") == "enclosure";
}

bool isImage(const xbr::IFeedEntry& entry, std::int32_t link) {
    return xbr::asciiLower(attribute(entry, link, "type")).starts_with("image/");
}

PictureChoice pictureOf(const xbr::IFeedEntry& entry, std::int32_t link, double scale) {
    return {attribute(entry, link, "href"), attribute(entry, link, "type"), scale};
}

} // namespace

std::optional<PictureChoice> choosePicture(const xbr::IFeedEntry& entry, double displayScale) {
    std::optional<std::int32_t> first;
    for (std::int32_t link = 0; link < entry.countLinks(); ++link) {
        if (!isEnclosure(entry, link)) {
            continue;
        }
        first = first.value_or(link);
        if (displayScale > 1.0 && isImage(entry, link) &&
            attribute(entry, link, "devicePixelRatio") == "2x") {
            return pictureOf(entry, link, kHighResolution);
        }
    }
    return first && isImage(entry, *first) ? std::optional(pictureOf(entry, *first, 1.0)) : std::nullopt;
}

std::int32_t logicalSize(std::int32_t pixels, double scale) {
    static constexpr double kNothing = 0.00195;
    const double size = pixels / scale;
    return static_cast<std::int32_t>(pixels >= 0 ? std::ceil(size - kNothing) : std::floor(size + kNothing));
}

} // namespace brindlex
