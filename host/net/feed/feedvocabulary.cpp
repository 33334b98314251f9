#include "host/net/feed/feedvocabulary.h"

namespace xbr::host {

namespace {

constexpr std::string_view kAtom = "http://www.w3.org/2005/Atom";
constexpr std::string_view kRss; // its elements have no namespace
constexpr std::string_view kContentModule = "http://purl.org/rss/1.0/modules/content/";
constexpr std::string_view kDublinCore = "http://purl.org/dc/elements/1.1/";

struct Row {
    FeedPart parent;
    std::string_view space;
    std::string_view name;
    FeedPart part;
    FeedText text;
};

constexpr Row kRows[] = {
    {FeedPart::kOutside, kAtom, "feed", FeedPart::kFeed, FeedText::kNone},
    {FeedPart::kFeed, kAtom, "title", FeedPart::kFeedTitle, FeedText::kAtom},
    {FeedPart::kFeed, kAtom, "entry", FeedPart::kEntry, FeedText::kNone},
    {FeedPart::kEntry, kAtom, "title", FeedPart::kTitle, FeedText::kAtom},
    {FeedPart::kEntry, kAtom, "summary", FeedPart::kSummary, FeedText::kAtom},
    {FeedPart::kEntry, kAtom, "content", FeedPart::kContent, FeedText::kAtom},
    {FeedPart::kEntry, kAtom, "published", FeedPart::kPublished, FeedText::kRfc3339Date},
    {FeedPart::kEntry, kAtom, "updated", FeedPart::kUpdated, FeedText::kRfc3339Date},
    {FeedPart::kEntry, kAtom, "link", FeedPart::kLink, FeedText::kNone}, // RSS feeds use it as well
    {FeedPart::kEntry, kAtom, "category", FeedPart::kCategory, FeedText::kNone},

    {FeedPart::kOutside, kRss, "rss", FeedPart::kRss, FeedText::kNone},
    {FeedPart::kRss, kRss, "channel", FeedPart::kFeed, FeedText::kNone},
    {FeedPart::kFeed, kRss, "title", FeedPart::kFeedTitle, FeedText::kHtml},
    {FeedPart::kFeed, kRss, "item", FeedPart::kEntry, FeedText::kNone},
    {FeedPart::kEntry, kRss, "title", FeedPart::kTitle, FeedText::kHtml},
    {FeedPart::kEntry, kRss, "description", FeedPart::kSummary, FeedText::kHtml},
    {FeedPart::kEntry, kContentModule, "encoded", FeedPart::kContent, FeedText::kHtml},
    {FeedPart::kEntry, kRss, "pubDate", FeedPart::kPublished, FeedText::kRfc822Date},
    {FeedPart::kEntry, kDublinCore, "date", FeedPart::kUpdated, FeedText::kRfc3339Date},
    {FeedPart::kEntry, kRss, "link", FeedPart::kAddress, FeedText::kRaw},
    {FeedPart::kEntry, kRss, "guid", FeedPart::kGuid, FeedText::kRaw},
    {FeedPart::kEntry, kRss, "enclosure", FeedPart::kEnclosure, FeedText::kNone},
    {FeedPart::kEntry, kRss, "category", FeedPart::kSubject, FeedText::kRaw},
};

} // namespace

FeedElement feedElement(FeedPart parent, const XmlName& name) {
    for (const Row& row : kRows) {
        if (row.parent == parent && row.name == name.local && row.space == name.space) {
            return {row.part, row.text};
        }
    }
    return {};
}

} // namespace xbr::host
