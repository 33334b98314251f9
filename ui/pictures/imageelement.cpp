#include "ui/pictures/imageelement.h"

#include "framework/abi/filesystem.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/data/url.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "ui/pictures/picturechoice.h"

#include <utility>

namespace brindlex {

namespace {

constexpr const char* kShow = "show"; // posted to itself

xbr::Ref<xbr::MemoryStream> streamOf(const std::string& bytes) {
    auto stream = xbr::make<xbr::MemoryStream>();
    stream->write(bytes);
    return stream;
}

} // namespace

void ImageElement::reload() {
    m_isReloadDue = m_shows == 0;
    if (m_shows > 0) {
        xbr::post(*this, "restartDownload");
    }
}

void ImageElement::beginShowing() noexcept {
    if (++m_shows == 1 && !m_image) {
        xbr::post(*this, kShow);
    }
}

void ImageElement::endShowing() noexcept {
    if (--m_shows > 0) {
        return;
    }
    dropTask();
    dropDecoding();
    setImage(nullptr);
    setDownloadState(xbr::DownloadState::kIdle);
}

bool ImageElement::mayHaveImage() const noexcept {
    const bool isOnItsWay =
        downloadState() == xbr::DownloadState::kIdle || downloadState() == xbr::DownloadState::kRunning;
    return m_image || m_decoding || (isOnItsWay && !location().empty());
}

void ImageElement::fetch(Freshness freshness) {
    const bool mustAsk = std::exchange(m_isReloadDue, false) || freshness == Freshness::kAskServer;
    if (const auto kept = m_cache ? m_cache->find(location(), m_scale) : nullptr) {
        setImage(kept);
        m_isChecked = true;
    }
    const bool isGood = m_isChecked && !mustAsk;
    const auto copy = m_cache && !(m_image && isGood) ? m_cache->load(location()) : std::nullopt;
    if (copy && !m_image) {
        decodeCopy(*copy);
    }
    if (isGood && (m_image || copy)) {
        setDownloadState(xbr::DownloadState::kComplete);
    } else if (copy) {
        download(copy->entityTag, copy->lastModified);
    } else {
        download();
    }
}

void ImageElement::downloadCompleted(xbr::IDownloadTask& task) {
    xbr::Ref<xbr::IStream> document;
    m_isChecked = true;
    if (XBRGetFileSystem()->fileExists(xbr::toText(location()))) {
        takeImage(loadFile());
    } else if (task.getData(document.out()) == xbr::kOk) {
        takeDocument(*document, task.copyTerms());
    } else {
        takeUnchanged();
    }
}

void ImageElement::takeDocument(xbr::IStream& document, const xbr::CopyTerms& terms) {
    if (xbr::measure(document) > 0) {
        if (m_cache) {
            m_cache->store(location(), terms, xbr::readAll(document));
        }
        decode(document, Origin::kServer);
        return;
    }
    dropDecoding();
    if (m_cache) {
        m_cache->remove(location());
    }
    takeImage(nullptr);
}

void ImageElement::takeUnchanged() {
    if (m_image || m_decoding) {
        return;
    }
    const auto copy = m_cache ? m_cache->load(location()) : std::nullopt;
    copy ? decodeCopy(*copy) : download(); // it may have gone meanwhile
}

void ImageElement::decodeCopy(const StoredPicture& copy) {
    decode(*streamOf(copy.bytes), Origin::kCopy);
}

void ImageElement::decode(xbr::IStream& stream, Origin origin) {
    xbr::rewind(stream);
    m_origin = origin;
    const auto decoder = xbr::query<xbr::IImageDecoder>(XBRGetGraphicsHelper());
    if (decoder->decodeLater(&stream, fileType().get(), kMaximumPixels, m_decoding.out()) == xbr::kOk) {
        m_decodingSubject = xbr::query<xbr::ISubject>(m_decoding.get());
        XBRGetSignalHandler()->addObserver(m_decodingSubject.get(), this);
    }
}

void ImageElement::dropDecoding() {
    m_decodingSubject.reset();
    m_decoding.reset(); // which ends it
}

void ImageElement::takeDecoded() {
    xbr::Ref<xbr::IImage> image;
    const xbr::Result result = m_decoding->getImage(image.out());
    dropDecoding();
    if (image) {
        takeImage(scaled(image));
        return;
    }
    if (result == xbr::kUnexpected) {
        return; // there is no room: neither the picture nor its copy is to blame
    }
    if (m_cache) {
        m_cache->remove(location());
    }
    m_origin == Origin::kCopy ? download() : takeImage(nullptr);
}

void ImageElement::notify(xbr::ISubject* subject, xbr::IMessage* message) noexcept {
    const auto self = xbr::Ref<ImageElement>::share(this);
    if (subject && subject == m_decodingSubject.get()) {
        takeDecoded();
    } else if (xbr::isNamed(*message, kShow)) {
        if (m_shows > 0) { // else it went by too quickly
            startDownload();
        }
    } else {
        Implements::notify(subject, message);
    }
}

void ImageElement::locationChanged() {
    dropDecoding();
    m_isChecked = false;
    setImage(nullptr);
}

xbr::Ref<xbr::IImage> ImageElement::loadFile() {
    xbr::Ref<xbr::IImage> image;
    XBRGetGraphicsHelper()->loadImage(xbr::toText(location()), image.out());
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
    XBRGetGraphicsHelper()->createHighResolutionImage(image.get(), logicalSize(image->width(), m_scale),
                                                      logicalSize(image->height(), m_scale), wrapped.out());
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
