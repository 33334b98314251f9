#pragma once

#include "framework/abi/feed.h"
#include "framework/abi/listmodel.h"
#include "ui/news/feedentry.h"
#include "ui/pictures/element.h"
#include "ui/pictures/imageelement.h"

#include <cstdint>
#include <string>
#include <vector>

namespace brindlex {

/// The service's news, "NewsFeed": downloads a feed and offers its entries to forms.
///
/// Parameters of each entry, in the order of the feed: "title", "summary", "content", "link", "date"; the
/// tags are 100 + 5 n for entry n and so on. Its picture is the child "image" followed by n. The same by
/// itself is the child "entry" followed by n: that entry's parameters, and its picture as "image".
///
/// Properties beside the Element's: "itemCount"; "maximumEntryCount", which may be set; "categoryTerm"
/// followed by n. View: "FeedView". Command: "Reload All" of category "Feed".
///
/// "changed" is signalled when the entries of the last feed have gone, and when those of a new one are there.
/// They are made of the feed when somebody asks for them.
class FeedElement final : public xbr::Implements<Element, xbr::ICommandList> {
public:
    static constexpr std::int32_t kParametersOfEntry = 5;

    FeedElement();
    ~FeedElement() override;

    /// Uses the first so many entries; what is not positive is no limit.
    void setMaximumEntryCount(std::int32_t count);

    /// Where pictures are kept; at the start it is a PersistentImageCache.
    void setCache(xbr::Ref<ImageElementCache> cache) { m_cache = std::move(cache); }

    /// Number of entries in use; 0 without a feed.
    std::int32_t itemCount() const;

    /// Fetches every picture again that is shown, and the others when they are; the feed only when that
    /// failed, or there is none.
    void reloadAll();

    std::int32_t countParameters() const noexcept override;
    xbr::IParameter* parameterAt(std::int32_t index) noexcept override;
    xbr::IParameter* findParameter(xbr::Text name) noexcept override;
    xbr::IObject* findObject(xbr::Text name) noexcept override;
    xbr::Result createView(xbr::Text name, xbr::IView** out) noexcept override;
    xbr::Result getProperty(xbr::Text name, xbr::Value* out) noexcept override;
    xbr::Result setProperty(xbr::Text name, const xbr::Value& value) noexcept override;

    // ICommandList
    std::int32_t count() const noexcept override { return 1; }
    xbr::Text categoryAt(std::int32_t index) const noexcept override;
    xbr::Text nameAt(std::int32_t index) const noexcept override;
    bool isEnabled(std::int32_t index) const noexcept override { return index == 0; }
    xbr::Result perform(std::int32_t index) noexcept override;

protected:
    void downloadCompleted(xbr::IDownloadTask& task) override;
    void locationChanged() override;

private:
    xbr::Ref<xbr::IFeed> readFeed(xbr::IDownloadTask& task) const;
    void rebuildEntries();
    void clearEntries();
    FeedEntry& entryAt(std::size_t index);
    xbr::Ref<ImageElement> makePicture(const xbr::IFeedEntry& entry, const std::string& name);
    xbr::Text categoryTerm(std::int64_t index) const;

    std::int32_t m_maximumEntryCount = -1;
    xbr::Ref<xbr::IFeed> m_feed;
    std::string m_feedLocation;                 ///< where it was found in the end
    std::vector<xbr::Ref<FeedEntry>> m_entries; ///< made when they are asked for; null before
    xbr::Ref<ImageElementCache> m_cache;
    std::uint32_t m_rebuilds = 0;
};

} // namespace brindlex
