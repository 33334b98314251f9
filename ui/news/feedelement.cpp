#include "ui/news/feedelement.h"

#include "framework/abi/view.h"
#include "framework/abi/webservice.h"
#include "framework/support/data/url.h"
#include "framework/support/objects/message.h"
#include "framework/support/objects/text.h"
#include "framework/support/parts/modulecomponent.h"
#include "ui/news/feedentry.h"
#include "ui/pictures/persistentimagecache.h"
#include "ui/pictures/picturechoice.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>

namespace brindlex {

namespace {

constexpr std::string_view kName = "NewsFeed";
constexpr std::string_view kView = "FeedView";
constexpr std::string_view kImage = "image";
constexpr std::string_view kEntry = "entry";
constexpr std::string_view kCategoryTerm = "categoryTerm";
constexpr std::int32_t kFirstTag = 100;

/// The number at the start of a text, read as scanf reads a decimal: blanks and a sign may come before it,
/// anything after it; one that is too large, on either side, is the largest.
std::optional<std::int64_t> leadingNumber(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    if (text.starts_with('+')) {
        text.remove_prefix(text.starts_with("+-") ? text.size() : 1);
    }
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc::result_out_of_range) {
        return std::numeric_limits<std::int64_t>::max();
    }
    return error == std::errc() ? std::optional(number) : std::nullopt;
}

/// Which child of so many a name of the form "image0" means.
std::optional<std::size_t> indexOfChild(std::string_view name, std::string_view kind, std::size_t count) {
    const auto index = name.starts_with(kind) ? leadingNumber(name.substr(kind.size())) : std::nullopt;
    const bool isThere = index && *index >= 0 && *index < static_cast<std::int64_t>(count) &&
                         name == std::string(kind) + std::to_string(*index);
    return isThere ? std::optional(static_cast<std::size_t>(*index)) : std::nullopt;
}

/// The target of the entry's first link to the entry itself.
std::string alternateOf(const xbr::IFeedEntry& entry) {
    for (std::int32_t i = 0; i < entry.countLinks(); ++i) {
        if (xbr::view(entry.linkAttribute(i, xbr::toText("rel"))) == "alternate") {
            return xbr::toString(entry.linkAttribute(i, xbr::toText("href")));
        }
    }
    return {};
}

bool isWeb(std::string_view location) {
    const std::string protocol = xbr::Url(location).protocol();
    return protocol == "http" || protocol == "https";
}

} // namespace

FeedElement::FeedElement() : Implements(kName), m_cache(xbr::make<PersistentImageCache>()) {}

FeedElement::~FeedElement() {
    clearEntries();
}

std::int32_t FeedElement::itemCount() const {
    const std::int32_t all = m_feed ? m_feed->countEntries() : 0;
    return m_maximumEntryCount > 0 ? std::min(all, m_maximumEntryCount) : all;
}

void FeedElement::downloadCompleted(xbr::IDownloadTask& task) {
    auto feed = readFeed(task);
    if (!feed) {
        return;
    }
    m_feed = std::move(feed);
    m_feedLocation = xbr::toString(task.location());
    rebuildEntries();
}

void FeedElement::setMaximumEntryCount(std::int32_t count) {
    m_maximumEntryCount = count;
    if (m_feed) {
        rebuildEntries();
    }
}

void FeedElement::rebuildEntries() {
    const auto self = xbr::Ref<FeedElement>::share(this);
    const auto turn = ++m_rebuilds;
    clearEntries();
    signalChanged();
    if (turn == m_rebuilds) { // else who was told had them renewed already
        m_entries.resize(static_cast<std::size_t>(itemCount()));
        signalChanged();
    }
}

void FeedElement::locationChanged() {
    if (m_feed) {
        m_feed.reset();
        rebuildEntries();
    }
}

xbr::Ref<xbr::IFeed> FeedElement::readFeed(xbr::IDownloadTask& task) const {
    const auto reader = xbr::query<xbr::IFeedReader>(XBRGetWebService());
    xbr::Ref<xbr::IStream> document;
    xbr::Ref<xbr::IFeed> feed;
    if (reader && task.getData(document.out()) == xbr::kOk) {
        const std::string location = xbr::toString(task.location()); // the next call may take the text back
        reader->readFeed(document.get(), xbr::toText(location), task.mimeType(), feed.out());
    }
    return feed;
}

void FeedElement::clearEntries() {
    for (const auto& entry : std::exchange(m_entries, {})) {
        if (entry) {
            entry->letGo();
        }
    }
}

FeedEntry& FeedElement::entryAt(std::size_t index) {
    auto& made = m_entries[index];
    if (!made) {
        const xbr::IFeedEntry& entry = *m_feed->entryAt(static_cast<std::int32_t>(index));
        const auto date = publicationOf(entry);
        const std::pair<std::string_view, std::string> texts[] = {{"title", xbr::toString(entry.title())},
                                                                  {"summary", xbr::toString(entry.summary())},
                                                                  {"content", xbr::toString(entry.content())},
                                                                  {"link", alternateOf(entry)},
                                                                  {"date", feedDate(date)}};
        xbr::IParameterOwner& owner = *this;
        auto tag = kFirstTag + static_cast<std::int32_t>(index) * kParametersOfEntry;
        FeedEntry::Parameters parameters;
        for (const auto& [name, text] : texts) {
            parameters.push_back(xbr::make<xbr::Parameter>(owner, xbr::ParameterKind::kText, tag++, name));
            parameters.back()->set(xbr::textValue(text), xbr::Notify::kNobody);
        }
        const std::string number = std::to_string(index);
        made = xbr::make<FeedEntry>(std::string(kEntry) + number, std::move(parameters),
                                    makePicture(entry, std::string(kImage) + number), date.has_value());
        made->setOwner(this);
    }
    return *made;
}

xbr::Ref<ImageElement> FeedElement::makePicture(const xbr::IFeedEntry& entry, const std::string& name) {
    auto image = xbr::make<ImageElement>(name);
    const auto picture = choosePicture(entry, XBRGetGraphicsHelper()->displayScale());
    // A feed of the web has no business with files.
    if (picture && (isWeb(picture->location) || !isWeb(m_feedLocation))) {
        image->setLocation(picture->location);
        image->setMimeType(picture->mimeType);
        image->setScale(picture->scale);
        image->setCache(m_cache);
    }
    image->setOwner(this);
    return image;
}

void FeedElement::reloadAll() {
    for (const auto& entry : m_entries) {
        if (entry) { // others have no picture yet
            entry->image().reload();
        }
    }
    const bool isWithout = downloadState() == xbr::DownloadState::kComplete && !m_feed;
    if (isWithout || downloadState() == xbr::DownloadState::kFailed) {
        xbr::post(*this, "restartDownload");
    }
}

std::int32_t FeedElement::countParameters() const noexcept {
    return static_cast<std::int32_t>(m_entries.size()) * kParametersOfEntry;
}

xbr::IParameter* FeedElement::parameterAt(std::int32_t index) noexcept {
    const bool isThere = index >= 0 && index < countParameters();
    return isThere ? entryAt(static_cast<std::size_t>(index / kParametersOfEntry))
                         .parameterAt(index % kParametersOfEntry)
                   : nullptr;
}

xbr::IParameter* FeedElement::findParameter(xbr::Text name) noexcept {
    return m_entries.empty() ? nullptr : entryAt(0).findParameter(name); // the first of that name
}

xbr::IObject* FeedElement::findObject(xbr::Text name) noexcept {
    const auto wanted = xbr::view(name);
    if (const auto index = indexOfChild(wanted, kImage, m_entries.size())) {
        return static_cast<xbr::IController*>(&entryAt(*index).image());
    }
    if (const auto index = indexOfChild(wanted, kEntry, m_entries.size())) {
        return static_cast<xbr::IController*>(&entryAt(*index));
    }
    return Implements::findObject(name);
}

xbr::Result FeedElement::createView(xbr::Text name, xbr::IView** out) noexcept {
    *out = nullptr;
    const auto* module = xbr::ModuleComponent::current();
    if (xbr::view(name) != kView || !module || !module->theme()) {
        return xbr::kFalse;
    }
    const xbr::Result result = module->theme()->createView(name, this, out);
    if (result == xbr::kOk) {
        xbr::post(*this, "startDownload");
    }
    return result;
}

xbr::Text FeedElement::categoryTerm(std::int64_t index) const {
    const bool isThere = index >= 0 && index < itemCount();
    return isThere ? m_feed->entryAt(static_cast<std::int32_t>(index))->categoryTermAt(0) : xbr::Text{};
}

xbr::Result FeedElement::getProperty(xbr::Text name, xbr::Value* out) noexcept {
    const auto wanted = xbr::view(name);
    if (wanted == "itemCount") {
        *out = xbr::integerValue(itemCount());
        return xbr::kOk;
    }
    if (wanted == "maximumEntryCount") {
        *out = xbr::integerValue(m_maximumEntryCount);
        return xbr::kOk;
    }
    const auto number =
        wanted.starts_with(kCategoryTerm) ? leadingNumber(wanted.substr(kCategoryTerm.size())) : std::nullopt;
    if (number) {
        *out = m_feed ? xbr::textValue(xbr::view(categoryTerm(*number))) : xbr::noValue();
        return xbr::kOk;
    }
    return Implements::getProperty(name, out);
}

xbr::Result FeedElement::setProperty(xbr::Text name, const xbr::Value& value) noexcept {
    if (xbr::view(name) == "maximumEntryCount" && value.kind == xbr::ValueKind::kInteger) {
        using Limits = std::numeric_limits<std::int32_t>;
        const auto count = std::clamp<std::int64_t>(value.integer, Limits::min(), Limits::max());
        setMaximumEntryCount(static_cast<std::int32_t>(count));
        return xbr::kOk;
    }
    return Implements::setProperty(name, value);
}

xbr::Text FeedElement::categoryAt(std::int32_t index) const noexcept {
    return xbr::toText(index == 0 ? "Feed" : "");
}

xbr::Text FeedElement::nameAt(std::int32_t index) const noexcept {
    return xbr::toText(index == 0 ? xbr::translatable("Reload All") : "");
}

xbr::Result FeedElement::perform(std::int32_t index) noexcept {
    if (index != 0) {
        return xbr::kFalse;
    }
    reloadAll();
    return xbr::kOk;
}

} // namespace brindlex
