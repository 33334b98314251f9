#include "ui/pictures/imageelement.h"

#include "framework/abi/filesystem.h"
#include "framework/abi/system.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/data/url.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "ui/pictures/picturechoice.h"

#include <utility>

namespace brindlex {

namespace {

xbr::Ref<xbr::MemoryStream> streamOf(const std::string& bytes) {
    auto stream = xbr::make<xbr::MemoryStream>();
    stream->write(bytes);
    return stream;
}

} // namespace

void ImageElement::fetch(Freshness freshness) {
    const bool mayUseCache = freshness == Freshness::kAsKept;
    if (mayUseCache && useMemory()) {
        return;
    }
    const auto stored = m_cache ? m_cache->load(location()) : std::nullopt;
    if (!stored) {
        download();
    } else if (!mayUseCache || stored->goodUntil <= XBRGetSystem()->currentTime() || !useStored(*stored)) {
        download(stored->entityTag, stored->lastModified);
    }
}

bool ImageElement::useMemory() {
    const auto image = m_cache ? m_cache->find(location(), m_scale) : nullptr;
    if (!image) {
        return false;
    }
    setImage(image);
    setDownloadState(xbr::DownloadState::kComplete);
    return true;
}

bool ImageElement::useStored(const StoredPicture& stored) {
    const auto image = scaled(decode(*streamOf(stored.bytes)));
    if (!image) {
        return false;
    }
    takeImage(image);
    setDownloadState(xbr::DownloadState::kComplete);
    return true;
}

void ImageElement::downloadCompleted(xbr::IDownloadTask& task) {
    xbr::Ref<xbr::IStream> document;
    if (XBRGetFileSystem()->fileExists(xbr::toText(location()))) {
        takeImage(loadFile());
    } else if (task.getData(document.out()) == xbr::kOk) {
        takeDocument(*document, task.copyTerms());
    } else {
        takeUnchanged(task.copyTerms());
    }
}

void ImageElement::takeDocument(xbr::IStream& document, const xbr::CopyTerms& terms) {
    const bool isEmpty = xbr::measure(document) <= 0;
    const auto image = isEmpty ? nullptr : scaled(decode(document));
    if (m_cache && image) {
        xbr::rewind(document);
        m_cache->store(location(), terms, xbr::readAll(document));
    } else if (m_cache) {
        m_cache->remove(location());
    }
    takeImage(image);
}

void ImageElement::takeUnchanged(const xbr::CopyTerms& terms) {
    const auto stored = m_cache ? m_cache->load(location()) : std::nullopt;
    if (!stored) {
        download(); // the copy went meanwhile
        return;
    }
    m_cache->renew(location(), terms);
    takeImage(scaled(decode(*streamOf(stored->bytes))));
}

void ImageElement::downloadFailed() {
    const auto stored = m_cache && !m_image ? m_cache->load(location()) : std::nullopt;
    if (stored) {
        takeImage(scaled(decode(*streamOf(stored->bytes)))); // better old than none
    }
}

void ImageElement::locationChanged() {
    setImage(nullptr);
}

xbr::Ref<xbr::IImage> ImageElement::loadFile() {
    xbr::Ref<xbr::IImage> image;
    XBRGetGraphicsHelper()->loadImage(xbr::toText(location()), image.out());
    return image;
}

xbr::Ref<xbr::IImage> ImageElement::decode(xbr::IStream& stream) {
    xbr::Ref<xbr::IImage> image;
    xbr::rewind(stream);
    XBRGetGraphicsHelper()->decodeImage(&stream, fileType().get(), image.out());
    return image;
}

xbr::Ref<xbr::IFileType> ImageElement::fileType() const {
    auto* registry = XBRGetFileTypeRegistry();
    xbr::Ref<xbr::IFileType> type;
    if (!m_mimeType.empty()) {
        registry->getTypeByMimeType(xbr::toText(m_mimeType), type.out());
    }
    if (!type) {
        registry->getTypeByExtension(xbr::toText(xbr::Url(location()).extension()), type.out());
    }
    return type;
}

xbr::Ref<xbr::IImage> ImageElement::scaled(const xbr::Ref<xbr::IImage>& image) const {
    if (!image || m_scale <= 1.0) {
        return image;
    }
    xbr::Ref<xbr::IImage> wrapped;
    XBRGetGraphicsHelper()->createHighResolutionImage(image.get(), logicalSize(image->pixelWidth(), m_scale),
                                                      logicalSize(image->pixelHeight(), m_scale),
                                                      wrapped.out());
    return wrapped;
}

void ImageElement::takeImage(const xbr::Ref<xbr::IImage>& image) {
    const auto cache = m_cache;
    setImage(image);
    if (cache) {
        cache->keep(location(), m_scale, image);
    }
}

void ImageElement::setImage(const xbr::Ref<xbr::IImage>& image) {
    if (!(m_image == image)) {
        m_image = image;
        xbr::signal(*this, "propertyChanged");
    }
}

xbr::Result ImageElement::getImage(xbr::IImage** out) noexcept {
    *out = xbr::Ref<xbr::IImage>(m_image).detach();
    return *out ? xbr::kOk : xbr::kFalse;
}

xbr::Result ImageElement::getProperty(xbr::Text name, xbr::Value* out) noexcept {
    if (xbr::view(name) == "hasImage") {
        *out = xbr::boolValue(static_cast<bool>(m_image));
        return xbr::kOk;
    }
    return Implements::getProperty(name, out);
}

xbr::Result ImageElement::setProperty(xbr::Text name, const xbr::Value& value) noexcept {
    if (xbr::view(name) == "cache" && value.kind == xbr::ValueKind::kObject) {
        auto* cache = value.object ? ImageElementCache::from(*value.object) : nullptr;
        setCache(cache ? xbr::Ref<ImageElementCache>::share(cache) : nullptr);
        return xbr::kOk;
    }
    return Implements::setProperty(name, value);
}

} // namespace brindlex
