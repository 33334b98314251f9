#include "tests/fakehost/fakefeeds.h"

#include "framework/support/data/memorystream.h"
#include "framework/support/objects/text.h"
#include "tests/fakehost/lender.h"

namespace fakehost {

namespace {

class Entry final : public xbr::Object<xbr::IFeedEntry> {
public:
    explicit Entry(FakeEntry entry) : m_entry(std::move(entry)) {}

    xbr::Text title() const noexcept override { return m_texts.lend(m_entry.title); }
    xbr::Text summary() const noexcept override { return m_texts.lend(m_entry.summary); }
    xbr::Text content() const noexcept override { return m_texts.lend(m_entry.content); }
    xbr::Result getPublished(std::int64_t* time) const noexcept override {
        *time = m_entry.published.value_or(0);
        return m_entry.published ? xbr::kOk : xbr::kFalse;
    }
    std::int32_t countLinks() const noexcept override {
        return static_cast<std::int32_t>(m_entry.links.size());
    }
    xbr::Text linkAttribute(std::int32_t index, xbr::Text name) const noexcept override {
        const auto& link = m_entry.links.at(static_cast<std::size_t>(index));
        const auto found = link.find(xbr::toString(name));
        return found == link.end() ? xbr::Text{} : m_texts.lend(found->second);
    }
    std::int32_t countCategories() const noexcept override {
        return static_cast<std::int32_t>(m_entry.categories.size());
    }
    xbr::Text categoryTermAt(std::int32_t index) const noexcept override {
        return index < countCategories() ? m_texts.lend(m_entry.categories[static_cast<std::size_t>(index)])
                                         : xbr::Text{};
    }

private:
    FakeEntry m_entry;
    Lender m_texts;
};

class Feed final : public xbr::Object<xbr::IFeed> {
public:
    explicit Feed(const std::vector<FakeEntry>& entries) {
        for (const auto& entry : entries) {
            m_entries.push_back(xbr::make<Entry>(entry));
        }
    }
    xbr::Text title() const noexcept override { return {}; }
    std::int32_t countEntries() const noexcept override {
        return static_cast<std::int32_t>(m_entries.size());
    }
    xbr::IFeedEntry* entryAt(std::int32_t index) noexcept override {
        return m_entries.at(static_cast<std::size_t>(index)).get();
    }

private:
    std::vector<xbr::Ref<Entry>> m_entries;
};

} // namespace

xbr::Result FakeFeeds::readFeed(xbr::IStream& stream, const std::string& location, xbr::IFeed** out) {
    xbr::rewind(stream);
    const auto found = documents.find(xbr::readAll(stream));
    *out = found == documents.end() || location.find("://") == std::string::npos
               ? nullptr
               : xbr::make<Feed>(found->second).detach();
    return *out ? xbr::kOk : xbr::kInvalidArgument;
}

} // namespace fakehost
