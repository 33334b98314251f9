#include "ui/tracks/tracksources.h"

#include "framework/abi/hostclasses.h"
#include "framework/abi/listmodel.h"
#include "framework/abi/view.h"
#include "framework/support/data/attributes.h"
#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"
#include "release/audiofile.h"

namespace brindlex {

namespace {

xbr::Ref<xbr::Attributes> readTags(const xbr::Url& file) {
    auto tags = xbr::make<xbr::Attributes>();
    const auto info = xbr::createHostObject<xbr::IMediaFileInfo>();
    if (info && info->open(xbr::toText(file.toString())) == xbr::kOk) {
        info->getAttributes(tags.get());
    }
    return tags;
}

std::string stemOf(const std::string& fileName) {
    const auto dot = fileName.rfind('.');
    return dot == 0 ? fileName : fileName.substr(0, dot);
}

/// A file that was chosen.
class ChosenFile final : public xbr::Object<xbr::IUrlSource> {
public:
    explicit ChosenFile(std::string url) : m_url(std::move(url)) {}
    xbr::Result getUrl(xbr::IString** out) noexcept override { return xbr::giveText(m_url, out); }

private:
    std::string m_url;
};

void addFilters(xbr::IFileSelector& selector) {
    for (const std::string_view extension : kAudioExtensions) {
        xbr::Ref<xbr::IFileType> type;
        const auto text = xbr::toText(extension);
        if (XBRGetFileTypeRegistry()->getTypeByExtension(text, type.out()) != xbr::kOk) {
            XBRGetFileTypeRegistry()->createType(text, type.out());
        }
        selector.addFilter(type.get());
    }
}

} // namespace

xbr::Url audioLocationOf(xbr::IObject& object) {
    xbr::Ref<xbr::IString> text;
    const auto source = xbr::query<xbr::IUrlSource>(&object);
    if (!source || source->getUrl(text.out()) != xbr::kOk) {
        return {};
    }
    xbr::Url location(xbr::view(text->text()));
    return isSupportedAudioFile(location) ? location : xbr::Url();
}

xbr::Ref<TrackItem> makeTrackFromFile(const xbr::Url& file) {
    const auto tags = readTags(file);
    std::string title = tags->getString("Media:Title");
    if (title.empty()) {
        title = stemOf(file.fileName());
    }
    auto record = xbr::make<TrackMetadata>();
    record->songTitle = title;
    record->albumTitle = title;
    record->primaryGenre = tags->getString("Media:Genre");
    return xbr::make<TrackItem>(title, file, std::move(record));
}

xbr::Ref<xbr::ObjectList> chooseTrackFiles() {
    const auto selector = xbr::createHostObject<xbr::IFileSelector>();
    if (!selector) {
        return {};
    }
    addFilters(*selector);
    if (selector->run(xbr::IFileSelector::Mode::kOpenFiles, xbr::toText("")) != xbr::kOk) {
        return {};
    }
    auto chosen = xbr::make<xbr::ObjectList>();
    for (std::int32_t i = 0; i < selector->countUrls(); ++i) {
        const auto file = xbr::make<ChosenFile>(xbr::toString(selector->urlAt(i)));
        chosen->add(xbr::query<xbr::IObject>(file.get()));
    }
    return chosen;
}

} // namespace brindlex
