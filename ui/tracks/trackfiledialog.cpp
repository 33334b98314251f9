#include "ui/tracks/trackfiledialog.h"

#include "framework/abi/view.h"
#include "framework/support/objects/hostobject.h"
#include "framework/support/objects/text.h"
#include "release/audiofile.h"

namespace brindlex {

namespace {

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

xbr::Ref<xbr::ObjectList> chooseTrackFiles() {
    const auto selector = xbr::createHostObject<xbr::IFileSelector>();
    if (!selector) {
        return {};
    }
    addFilters(*selector);
    const bool confirmed = selector->run(xbr::IFileSelector::Mode::kOpenFiles, xbr::toText("")) == xbr::kOk;
    if (!confirmed || selector->countUrls() == 0) {
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
