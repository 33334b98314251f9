// Feeds from anybody: whatever the bytes are, reading them ends, in bounds and in time, with a feed or
// without.

#include "framework/abi/feed.h"
#include "framework/abi/webservice.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/text.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

constexpr std::string_view kMimeTypes[] = {"", "application/atom+xml", "text/xml; charset=\"iso-8859-1\"",
                                           "application/xml;charset=utf-16"};

void expect(bool isSo) {
    if (!isSo) {
        std::abort();
    }
}

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
    entry.getUpdated(&time);
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
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    static const auto reader = xbr::query<xbr::IFeedReader>(XBRGetWebService());
    const auto stream = xbr::make<xbr::MemoryStream>();
    stream->write({reinterpret_cast<const char*>(data) + 1, size - 1});
    xbr::rewind(*stream);
    xbr::Ref<xbr::IFeed> feed;
    const auto result =
        reader->readFeed(stream.get(), xbr::toText("https://news.example/feed.atom"),
                         xbr::toText(kMimeTypes[data[0] % std::size(kMimeTypes)]), feed.out());
    expect((result == xbr::kOk) == static_cast<bool>(feed));
    for (std::int32_t i = 0; feed && i < feed->countEntries(); ++i) {
        look(*feed->entryAt(i));
    }
    return 0;
}
