#include "framework/abi/feed.h"

#include "framework/abi/webservice.h"
#include "framework/support/objects/text.h"
#include "tests/fuzz/fuzz.h"
#include "tests/fuzz/streams.h"

#include <iterator>

namespace {

constexpr std::string_view kMimeTypes[] = {"", "application/atom+xml", "text/xml; charset=\"iso-8859-1\"",
                                           "application/xml;charset=utf-16"};

using fuzz::expect;

/// Touches every byte that was answered.
std::size_t sumOf(xbr::Text text) {
    std::size_t sum = 0;
    for (const char c : xbr::view(text)) {
        expect(c != '\0');
        sum += static_cast<unsigned char>(c);
    }
    return sum;
}

void look(const xbr::IFeedEntry& entry) {
    std::int64_t time = 0;
    std::size_t sum = sumOf(entry.title()) + sumOf(entry.summary()) + sumOf(entry.content());
    entry.getPublished(&time);
    for (std::int32_t i = 0; i < entry.countLinks(); ++i) {
        expect(entry.linkAttribute(i, xbr::toText("rel")).length > 0);
        expect(entry.linkAttribute(i, xbr::toText("href")).length > 0);
        sum += sumOf(entry.linkAttribute(i, xbr::toText("href")));
    }
    for (std::int32_t i = 0; i < entry.countCategories(); ++i) {
        sum += sumOf(entry.categoryTermAt(i));
    }
    expect(sum < SIZE_MAX);
}

} // namespace

/// The first byte chooses what the server declares, the rest is the document.
void fuzz::read(std::string_view input) {
    static const auto reader = xbr::query<xbr::IFeedReader>(XBRGetWebService());
    const auto mimeType = kMimeTypes[takeChoice(input) % std::size(kMimeTypes)];
    xbr::Ref<xbr::IFeed> feed;
    const auto result = reader->readFeed(streamOf(input).get(), xbr::toText("https://news.example/feed.atom"),
                                         xbr::toText(mimeType), feed.out());
    expect((result == xbr::kOk) == static_cast<bool>(feed));
    for (std::int32_t i = 0; feed && i < feed->countEntries(); ++i) {
        look(*feed->entryAt(i));
    }
}
