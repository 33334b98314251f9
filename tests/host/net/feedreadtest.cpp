// Links, dates, categories and encodings of feeds, and what is no feed.

#include "tests/host/net/feedfixture.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>

namespace xbr::host::test {

namespace {

std::optional<std::int64_t> dateOf(const std::string& elements) {
    const auto feed = readFeed({atomEntry(elements)});
    std::int64_t time = 0;
    if (!feed) {
        return std::nullopt;
    }
    return feed->entryAt(0)->getPublished(&time) == kOk ? std::optional(time) : std::nullopt;
}

TEST(FeedDates, areReadInEveryLegalForm) {
    constexpr std::int64_t kTime = 1'071'340'202; // 2003-12-13T18:30:02Z
    const std::pair<const char*, std::optional<std::int64_t>> atomDates[] = {
        {"2003-12-13T18:30:02Z", kTime},
        {" 2003-12-13t18:30:02z\n", kTime},
        {"2003-12-13 18:30:02.25Z", kTime},
        {"2003-12-13T18:30:02.123456789012345+01:00", kTime - 3600},
        {"2003-12-13T18:30:02-05:30", kTime + 19800},
        {"2003-12-13T18:30:02-00:00", kTime},
        {"1998-12-31T23:59:60Z", 915'148'800},
        {"2000-02-29T00:00:00Z", 951'782'400},
        {"0001-01-01T00:00:00Z", -62'135'596'800},
        {"1899-12-31T23:59:59Z", -2'208'988'801},
        {"2003-02-29T00:00:00Z", {}},
        {"2003-13-01T00:00:00Z", {}},
        {"2003-12-13T24:00:00Z", {}},
        {"2003-12-13T18:30Z", {}},
        {"2003-12-13T18:30:02", {}},
        {"2003-12-13T18:30:02.Z", {}},
        {"2003-12-13T18:30:02Zulu", {}},
        {"2003-12-13T18:30:02+99:00", {}},
        {"2003-12-13", {}},
        {"yesterday", {}},
        {"", {}},
    };
    for (const auto& [text, time] : atomDates) {
        const std::string date(text);
        EXPECT_EQ(dateOf("<published>" + date + "</published>"), time) << text;
        EXPECT_EQ(dateOf("<published>never</published><updated>" + date + "</updated>"), time) << text;
    }
    EXPECT_EQ(dateOf("<updated>2004-01-01T00:00:00Z</updated><published>2003-12-13T18:30:02Z</published>"),
              kTime);
}

struct LinkCase {
    const char* name;
    std::string document;
    std::string links;
    std::string location = "https://news.example/feeds/feed.atom";
};

void PrintTo(const LinkCase& one, std::ostream* out) {
    *out << one.name;
}

class FeedLinks : public ::testing::TestWithParam<LinkCase> {};

TEST_P(FeedLinks, areAbsolute) {
    const auto feed = readFeed({GetParam().document, GetParam().location});
    ASSERT_TRUE(feed);
    EXPECT_EQ(linksOf(*feed->entryAt(0)), GetParam().links);
}

INSTANTIATE_TEST_SUITE_P(
    All, FeedLinks,
    ::testing::Values(
        LinkCase{"relations",
                 atomEntry("<link href='a'/><link rel='enclosure' type='image/png' href='/b'/>"
                           "<link rel='http://www.iana.org/assignments/relation/alternate' href='?c'/>"
                           "<link rel='x:own' href='//cdn.example/d'/>"),
                 "alternate  https://news.example/feeds/a\nenclosure image/png https://news.example/b\n"
                 "alternate  https://news.example/feeds/feed.atom?c\nx:own  https://cdn.example/d\n"},
        LinkCase{"bases",
                 atom("<entry xml:base='posts/'><x xml:base='nowhere/'/><link href='1'/>"
                      "<link xml:base='https://other.example/y/' href='2'/></entry>",
                      "xml:base='/base/'"),
                 "alternate  https://news.example/base/posts/1\nalternate  https://other.example/y/2\n"},
        LinkCase{
            "odd",
            atomEntry("<link href=' https://a.example/ä b?q=%C3%A4&amp;s=a%2Fb+c '/><link rel='x'/>"
                      "<link href=''/><link href='http://[bad'/><link href='mailto:a@b.example'/>"),
            "alternate  https://a.example/%C3%A4%20b?q=%C3%A4&s=a%2Fb+c\nalternate  mailto:a@b.example\n"},
        LinkCase{"foreignAttributes",
                 atomEntry("<link xmlns:x='urn:x' x:href='wrong' href='right' x:rel='self' rel='enclosure' "
                           "x:type='image/png'/>"),
                 "enclosure image/png https://news.example/feeds/right\n"},
        LinkCase{"withoutLocation", atomEntry("<link href='a/b'/><link href='https://c.example/'/>"),
                 "alternate  a/b\nalternate  https://c.example/\n", ""}),
    [](const auto& one) { return one.param.name; });

TEST(FeedEntries, tellTheirCategoriesAndAttributesInOrder) {
    const auto feed =
        readFeed({atom("<title>The news</title><entry><title>1</title><category term='a'/>"
                       "<category term='b' scheme='s'/><link rel='enclosure' devicePixelRatio='2x' "
                       "href='i'/></entry><entry><title>2</title></entry>")});
    ASSERT_TRUE(feed);
    EXPECT_EQ(view(feed->title()), "The news");
    ASSERT_EQ(feed->countEntries(), 2);
    const IFeedEntry& entry = *feed->entryAt(0);
    ASSERT_EQ(entry.countCategories(), 2);
    EXPECT_EQ(view(entry.categoryTermAt(1)), "b");
    EXPECT_EQ(view(entry.categoryTermAt(2)), "");
    EXPECT_EQ(view(entry.categoryTermAt(-1)), "");
    EXPECT_EQ(view(entry.linkAttribute(0, toText("devicePixelRatio"))), "2x");
    EXPECT_EQ(view(entry.linkAttribute(1, toText("rel"))), "");
    EXPECT_EQ(view(feed->entryAt(1)->title()), "2");
    EXPECT_EQ(feed->entryAt(2), nullptr);
    EXPECT_EQ(feed->entryAt(-1), nullptr);
}

std::string utf16(std::u16string_view text, bool isBigEndian) {
    std::string bytes;
    for (const char16_t unit : text) {
        const char high = static_cast<char>(unit >> 8U);
        const char low = static_cast<char>(unit & 0xFFU);
        bytes += isBigEndian ? std::string{high, low} : std::string{low, high};
    }
    return bytes;
}

TEST(FeedEncodings, areTakenAsDeclared) {
    const std::u16string wide =
        u"<?xml version='1.0' encoding='UTF-16'?><feed "
        u"xmlns='http://www.w3.org/2005/Atom'><entry><title>ä€</title></entry></feed>";
    const auto declared = [](const char* encoding, const char* title) {
        return "<?xml version=\"1.0\" encoding=\"" + std::string(encoding) + "\"?>" +
               atomEntry("<title>" + std::string(title) + "</title>");
    };
    const FeedSource cases[] = {
        {declared("utf-8", "ä€")},
        {"\xEF\xBB\xBF" + declared("iso-8859-1", "ä€"), {}, "application/atom+xml; charset=latin1"},
        {utf16(u"\uFEFF" + wide, true)},
        {utf16(u"\uFEFF" + wide, false)},
        {utf16(wide, true)},
        {utf16(wide, false)},
        {declared("windows-1252", "\xE4\x80")},
        {declared("ISO-8859-15", "\xE4\xA4")},
        {declared("utf-8", "\xE4\x80"), {}, "application/atom+xml;charset=\"Windows-1252\""},
        {atomEntry("<title>&#228;&#x20AC;</title>")},
    };
    for (const auto& source : cases) {
        const auto feed = readFeed(source);
        ASSERT_TRUE(feed) << source.document.substr(0, 60);
        EXPECT_EQ(view(feed->entryAt(0)->title()), "ä€") << source.document.substr(0, 60);
    }
    for (const auto& document : {declared("utf-8", "\xE4"), declared("klingon", "a"), declared("utf-16", "a"),
                                 declared("us-ascii", "\xE4"), utf16(wide, true) + "x"}) {
        EXPECT_FALSE(readFeed({document})) << document;
    }
}

TEST(FeedLimits, refuseWhatIsNoFeedAsAWhole) {
    const std::string half = "<feed xmlns='http://www.w3.org/2005/Atom'><entry><title>a</title></entry>";
    const std::string entry = "<entry><title>a</title></entry>";
    std::string deep;
    for (int i = 0; i < 70; ++i) {
        deep = "<x>" + deep + "</x>";
    }
    std::string many;
    for (int i = 0; i <= 10'000; ++i) {
        many += "<entry/>";
    }
    std::string links = "<entry>";
    for (int i = 0; i < 300'000; ++i) {
        links += "<link href='x'/>";
    }
    const std::string cases[] = {
        "",
        "not a feed",
        "<html><body>Sign in to this network</body></html>",
        "<feed><entry/></feed>",
        "<entry xmlns='http://www.w3.org/2005/Atom'/>",
        "<rss version='2.0'><channel><title>News</title></channel></rss>",
        half,
        half + "</fed>",
        half + "<entry>&nbsp;</entry></feed>",
        half + "<entry a='1' a='2'/></feed>",
        half + "<x:y/></feed>",
        half + "<entry x:y='z'/></feed>",
        half + "</feed><feed/>",
        half + "<entry>\x01</entry></feed>",
        "<!DOCTYPE feed>" + atom(entry),
        "<!DOCTYPE feed [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;'>]>" + atom("<title>&b;</title>"),
        "<!DOCTYPE feed SYSTEM 'file:///etc/passwd'>" + atom(entry),
        atom(deep),
        atom(many),
        atom(links + "</entry>", "xml:base='https://x.example/" + std::string(2000, 'a') + "/'"),
        atom(entry + std::string(std::size_t{9} << 20U, ' ')),
    };
    for (const auto& document : cases) {
        Result result = kOk;
        EXPECT_FALSE(readFeed({document}, &result)) << document.substr(0, 200);
        EXPECT_EQ(result, kInvalidArgument) << document.substr(0, 200);
    }
    EXPECT_EQ(readFeed({atom("")})->countEntries(), 0) << "a feed without entries is one";
}

} // namespace

} // namespace xbr::host::test
