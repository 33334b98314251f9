#include "host/net/feed/feedrecord.h"

#include "framework/support/objects/object.h"
#include "framework/support/objects/text.h"

#include <algorithm>

namespace xbr::host {

namespace {

template <class List>
auto* at(List& list, std::int32_t index) noexcept {
    const auto place = static_cast<std::size_t>(index);
    return index >= 0 && place < list.size() ? &list[place] : nullptr;
}

template <class List>
std::int32_t sizeOf(const List& list) noexcept {
    return static_cast<std::int32_t>(list.size());
}

class FeedEntry final : public Object<IFeedEntry> {
public:
    explicit FeedEntry(FeedEntryRecord record) : m_record(std::move(record)) {}

    Text title() const noexcept override { return toText(m_record.title); }
    Text summary() const noexcept override { return toText(m_record.summary); }
    Text content() const noexcept override { return toText(m_record.content); }
    Result getPublished(std::int64_t* time) const noexcept override {
        const auto& published = m_record.published ? m_record.published : m_record.updated;
        *time = published.value_or(0);
        return published ? kOk : kFalse;
    }
    std::int32_t countLinks() const noexcept override { return sizeOf(m_record.links); }
    Text linkAttribute(std::int32_t index, Text name) const noexcept override {
        const FeedLink* link = at(m_record.links, index);
        if (!link) {
            return {};
        }
        const auto found = std::find_if(link->begin(), link->end(),
                                        [&](const auto& pair) { return pair.first == view(name); });
        return found == link->end() ? Text{} : toText(found->second);
    }
    std::int32_t countCategories() const noexcept override { return sizeOf(m_record.categories); }
    Text categoryTermAt(std::int32_t index) const noexcept override {
        const std::string* term = at(m_record.categories, index);
        return term ? toText(*term) : Text{};
    }

private:
    FeedEntryRecord m_record;
};

class Feed final : public Object<IFeed> {
public:
    explicit Feed(FeedRecord record) : m_title(std::move(record.title)) {
        m_entries.reserve(record.entries.size());
        for (auto& entry : record.entries) {
            m_entries.push_back(make<FeedEntry>(std::move(entry)));
        }
    }

    Text title() const noexcept override { return toText(m_title); }
    std::int32_t countEntries() const noexcept override { return sizeOf(m_entries); }
    IFeedEntry* entryAt(std::int32_t index) noexcept override {
        const Ref<FeedEntry>* entry = at(m_entries, index);
        return entry ? entry->get() : nullptr;
    }

private:
    std::string m_title;
    std::vector<Ref<FeedEntry>> m_entries;
};

} // namespace

void giveFeed(FeedRecord record, IFeed** out) {
    *out = make<Feed>(std::move(record)).detach();
}

} // namespace xbr::host
