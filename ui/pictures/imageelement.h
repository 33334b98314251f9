#pragma once

#include "framework/abi/filetype.h"
#include "framework/abi/graphics.h"
#include "ui/pictures/element.h"
#include "ui/pictures/imageelementcache.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace brindlex {

/// A picture at a location: fetched, decoded, and shown by forms as an image source.
///
/// Forms that show it make it fetch, and when the last of them has gone so does the image; the cache keeps
/// it. A copy from an earlier run is shown at once, while the server is asked, once a run, whether it has
/// another version.
///
/// Properties beside the Element's: "hasImage"; "cache", which may be set to an ImageElementCache.
class ImageElement final : public xbr::Implements<Element, xbr::IImageSource, xbr::IShownImage> {
public:
    /// The most pixels that are kept of a picture: forms show it small.
    static constexpr std::int64_t kMaximumPixels = std::int64_t{128} << 10U;

    explicit ImageElement(std::string_view name) : Implements(name) {}
    ImageElement() : ImageElement("ImageElement") {}

    /// The type that whoever named the location declared; may be empty.
    void setMimeType(std::string_view mimeType) { m_mimeType = mimeType; }

    /// Pixels for each point in which the picture was made.
    void setScale(double scale) { m_scale = scale; }

    /// Where the picture is looked for first, and kept; null for nowhere.
    void setCache(xbr::Ref<ImageElementCache> cache) { m_cache = std::move(cache); }

    /// Fetches the picture again: now if somebody shows it, else when somebody does.
    void reload();

    void beginShowing() noexcept override;
    void endShowing() noexcept override;
    bool mayHaveImage() const noexcept override;
    xbr::Result getImage(xbr::IImage** out) noexcept override;
    xbr::Result getProperty(xbr::Text name, xbr::Value* out) noexcept override;
    xbr::Result setProperty(xbr::Text name, const xbr::Value& value) noexcept override;
    void notify(xbr::ISubject* subject, xbr::IMessage* message) noexcept override;

protected:
    void fetch(Freshness freshness) override;
    void downloadCompleted(xbr::IDownloadTask& task) override;
    void locationChanged() override;

private:
    enum class Origin { kCopy, kServer };

    void takeDocument(xbr::IStream& document, const xbr::CopyTerms& terms);
    void takeUnchanged();
    void takeDecoded();
    void takeImage(const xbr::Ref<xbr::IImage>& image);
    void decode(xbr::IStream& stream, Origin origin);
    void decodeCopy(const StoredPicture& copy);
    void dropDecoding();
    xbr::Ref<xbr::IImage> loadFile();
    xbr::Ref<xbr::IFileType> fileType() const;
    xbr::Ref<xbr::IImage> scaled(const xbr::Ref<xbr::IImage>& image) const;
    void setImage(const xbr::Ref<xbr::IImage>& image);

    std::string m_mimeType;
    double m_scale = 1.0;
    xbr::Ref<xbr::IImage> m_image;
    xbr::Ref<ImageElementCache> m_cache;
    xbr::Ref<xbr::IDecodingTask> m_decoding; ///< null when nothing is decoded
    xbr::Ref<xbr::ISubject> m_decodingSubject;
    Origin m_origin = Origin::kCopy; ///< of what is decoded
    int m_shows = 0;
    bool m_isChecked = false;   ///< the server was asked in this run
    bool m_isReloadDue = false; ///< and shall be again when somebody shows the picture
};

} // namespace brindlex
