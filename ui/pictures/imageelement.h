#pragma once

#include "framework/abi/filetype.h"
#include "framework/abi/graphics.h"
#include "ui/pictures/element.h"
#include "ui/pictures/imageelementcache.h"

#include <string>
#include <string_view>

namespace brindlex {

/// A picture at a location: fetched, decoded, and shown by forms as an image source.
///
/// Properties beside the Element's: "hasImage"; "cache", which may be set to an ImageElementCache.
class ImageElement final : public xbr::Implements<Element, xbr::IImageSource> {
public:
    explicit ImageElement(std::string_view name) : Implements(name) {}
    ImageElement() : ImageElement("ImageElement") {}

    /// The type that whoever named the location declared; may be empty.
    void setMimeType(std::string_view mimeType) { m_mimeType = mimeType; }

    /// Pixels for each point in which the picture was made.
    void setScale(double scale) { m_scale = scale; }

    /// Where the picture is looked for first, and kept; null for nowhere.
    void setCache(xbr::Ref<ImageElementCache> cache) { m_cache = std::move(cache); }

    xbr::Result getImage(xbr::IImage** out) noexcept override;
    xbr::Result getProperty(xbr::Text name, xbr::Value* out) noexcept override;
    xbr::Result setProperty(xbr::Text name, const xbr::Value& value) noexcept override;

protected:
    void fetch(Freshness freshness) override;
    void downloadCompleted(xbr::IDownloadTask& task) override;
    void downloadFailed() override;
    void locationChanged() override;

private:
    bool useMemory();
    bool useStored(const StoredPicture& stored);
    void takeUnchanged(const xbr::CopyTerms& terms);
    void takeDocument(xbr::IStream& document, const xbr::CopyTerms& terms);
    void takeImage(const xbr::Ref<xbr::IImage>& image);
    xbr::Ref<xbr::IImage> loadFile();
    xbr::Ref<xbr::IImage> decode(xbr::IStream& stream);
    xbr::Ref<xbr::IFileType> fileType() const;
    xbr::Ref<xbr::IImage> scaled(const xbr::Ref<xbr::IImage>& image) const;
    void setImage(const xbr::Ref<xbr::IImage>& image);

    std::string m_mimeType;
    double m_scale = 1.0;
    xbr::Ref<xbr::IImage> m_image;
    xbr::Ref<ImageElementCache> m_cache;
};

} // namespace brindlex
