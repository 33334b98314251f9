#include "host/app/modules/publishentry.h"

#include "framework/abi/locale.h"
#include "framework/abi/pluginmanager.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/translation.h"
#include "host/app/modules/gadgetpanel.h"

#include <filesystem>

namespace xbr::host {

namespace {

/// The tables of the modules that have a panel.
std::vector<Ref<ITranslationTable>> tablesOfPanels() {
    std::vector<Ref<ITranslationTable>> tables;
    for (const GadgetClass& gadget : findGadgets()) {
        XBRGetLocaleManager()->getTable(toText(gadget.themeName), tables.emplace_back().out());
    }
    return tables;
}

/// The name of a class in the user's language, where one of the tables has it.
std::string nameOf(const ClassDescription& found, const std::vector<Ref<ITranslationTable>>& tables) {
    std::string source = toString(found.name);
    for (const auto& table : tables) {
        if (auto translated = translate(found.name, table.get()); translated != source) {
            return translated;
        }
    }
    return source;
}

} // namespace

std::vector<PublishEntry> findPublishEntries() {
    static constexpr std::string_view kCategory = "Publisher";
    const auto tables = tablesOfPanels();
    std::vector<PublishEntry> entries;
    for (std::int32_t i = 0; i < XBRGetPlugInManager()->countClasses(toText(kCategory)); ++i) {
        const ClassDescription* found = XBRGetPlugInManager()->classAt(toText(kCategory), i, nullptr);
        entries.push_back({found->uid, nameOf(*found, tables)});
    }
    return entries;
}

Ref<IPublisher> createPublisher(const PublishEntry& entry) {
    void* created = nullptr;
    XBRGetPlugInManager()->createInstance(entry.uid, IPublisher::kUid, &created);
    return Ref<IPublisher>::adopt(static_cast<IPublisher*>(created));
}

Result PublishedItem::getUrl(IString** out) noexcept {
    return giveText(m_url, out);
}

Result PublishedItem::getMediaAttributes(IAttributes* out) noexcept {
    for (std::int32_t i = 0; i < m_media->count(); ++i) {
        const std::string name = toString(m_media->nameAt(i));
        out->set(toText(name), m_media->get(name));
    }
    return kOk;
}

void PublishedItems::add(std::string url, Ref<Attributes> media) {
    m_items.push_back(make<PublishedItem>(std::move(url), std::move(media)));
}

Result PublishedItems::next(IObject** out) noexcept {
    *out = nullptr;
    if (m_next == m_items.size()) {
        return kFalse;
    }
    const auto item = std::move(m_items[m_next++]); // nobody goes through them twice
    *out = query<IObject>(item.get()).detach();
    return kOk;
}

Ref<IFileType> fileTypeOf(const std::string& path) {
    const std::string extension = std::filesystem::path(path).extension().string();
    const std::string name = extension.size() > 1 ? extension.substr(1) : "audio";
    Ref<IFileType> type;
    if (XBRGetFileTypeRegistry()->getTypeByExtension(toText(name), type.out()) != kOk) {
        XBRGetFileTypeRegistry()->createType(toText(name), type.out());
    }
    return type;
}

} // namespace xbr::host
