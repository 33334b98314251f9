// What is read of a feed, in whatever form it is written, and what is no feed.

#include "framework/abi/feed.h"

#include "framework/abi/webservice.h"
#include "framework/support/objects/text.h"
#include "tests/fixtures/streams.h"

#include <QStringEncoder>
#include <gtest/gtest.h>

#include <optional>

namespace xbr::host::test {

namespace {

const char* const kLocation = "https://news.example/feeds/feed.atom";

/// Null when the document is refused.
Ref<IFeed> readFeed(std::string_view document, std::string_view mimeType = {},
                    std::string_view location = kLocation) {
    Ref<IFeed> feed;
    const Result result =
        query<IFeedReader>(XBRGetWebService())
            ->readFeed(streamOf(document).get(), toText(location), toText(mimeType), feed.out());
    EXPECT_EQ(result, feed ? kOk : kInvalidArgument);
    return feed;
}

/// An Atom feed around some XML.
std::string atom(const std::string& inside, const std::string& attributes = {}) {
    return "<feed xmlns=\"http://www.w3.org/2005/Atom\" " + attributes + ">" + inside + "</feed>";
}

std::string atomEntry(const std::string& inside) {
    return atom("<entry>" + inside + "</entry>");
}

/// "rel type href" of each link, in lines.
std::string linksOf(const IFeedEntry& entry) {
    std::string text;
    for (std::int32_t i = 0; i < entry.countLinks(); ++i) {
        text += toString(entry.linkAttribute(i, toText("rel"))) + " " +
                toString(entry.linkAttribute(i, toText("type"))) + " " +
                toString(entry.linkAttribute(i, toText("href"))) + "\n";
    }
    return text;
}

TEST(Feeds, textsComeToPlainOnes) {
    const struct {
        std::string entry;
        const char *title, *summary, *content;
    } cases[] = {
        {"<title> Fish &amp;\n chips </title><summary type='text'>a &lt;b&gt; c</summary>"
         "<content type='TEXT'><![CDATA[<i>as it is</i>]]></content>",
         "Fish & chips", "a <b> c", "<i>as it is</i>"},
        {"<title type='html'>Less &amp;lt;br&amp;gt; &amp;amp; more</title><summary type='html'>"
         "&lt;p&gt;one&lt;/p&gt;&lt;p&gt;two &lt;b&gt;bold&lt;/b&gt;&lt;br/&gt;three&lt;/p&gt;</summary>"
         "<content type='text/html; charset=utf-8'>&lt;i>x&lt;/i></content>",
         "Less <br> & more", "one\ntwo bold\nthree", "x"},
        {"<title type='xhtml'><div xmlns='http://www.w3.org/1999/xhtml'>a <b>b</b></div></title>"
         "<summary type='xhtml' "
         "xmlns:h='http://www.w3.org/1999/xhtml'><h:div>\n<h:p>one</h:p><h:script>evil()"
         "</h:script><h:p>t<h:em>wo</h:em></h:p></h:div></summary>",
         "a b", "one\ntwo", ""},
        {"<content type='text/plain'>\none\n two\n</content>", "", "", "one\n two"},
        {"<title>t</title><summary type='image/svg+xml'><svg>s</svg></summary>"
         "<content type='image/png'>aGVsbG8=</content>",
         "t", "", ""},
        {"<summary type='text/xml'>s</summary><content src='https://x.example/'>n</content>", "", "", ""},
        {"<title>mine</title><x:title xmlns:x='urn:x'>theirs</x:title><y xmlns='urn:y'><title>inside</title>"
         "</y><source><title>origin</title></source><m:summary xmlns:m='http://www.w3.org/2005/Atom'>prefixed"
         "</m:summary>",
         "mine", "prefixed", ""},
        {"<title>one</title><title>two</title>", "one", "", ""},
        {"<title>a<b>hidden</b>c</title>", "ac", "", ""},
    };
    for (const auto& [inside, title, summary, content] : cases) {
        const auto feed = readFeed(atomEntry(inside));
        ASSERT_TRUE(feed) << inside;
        const IFeedEntry& entry = *feed->entryAt(0);
        EXPECT_EQ(view(entry.title()), title);
        EXPECT_EQ(view(entry.summary()), summary);
        EXPECT_EQ(view(entry.content()), content);
    }
}

Ref<IFeed> readHtml(const std::string& html) {
    return readFeed(atomEntry("<summary type='html'><![CDATA[" + html + "]]></summary>"));
}

/// HTML as people write it, and what a reader sees of it.
TEST(Feeds, htmlComesToPlainText) {
    const std::pair<const char*, const char*> cases[] = {
        {"a<!-- <b> -->b", "ab"},
        {"<style>p {}</style>x<SCRIPT>if (a</b) </script >y", "xy"},
        {"<script>never ends", ""},
        {"<a href='a>b' title=\"c>d\">link</a>", "link"},
        {"1 < 2 <3 & 4 &amp5; &nosuch; &#; &#x; &;", "1 < 2 <3 & 4 &amp5; &nosuch; &;"},
        {"&eacute;&hellip;&nbsp;&#8217;&#X41;&#128512;", "é…\xC2\xA0’A😀"},
        {"a&#0;&#8;&#xD800;&#1114112;&#99999999999;b", "ab"},
        {"<meta charset='latin1'>ä<title>t</title><textarea>u</textarea>ö", "ä\nö"},
        {"<ul><li>one<li>two</ul>end", "one\ntwo\nend"},
        {"<table><tr><td>a</td><td>b</td></tr></table>", "a b"},
        {"a<br><br><br>b", "a\nb"},
        {"<unclosed", ""},
        {"text <", "text <"},
    };
    for (const auto& [html, text] : cases) {
        const auto feed = readHtml(html);
        ASSERT_TRUE(feed) << html;
        EXPECT_EQ(view(feed->entryAt(0)->summary()), text) << html;
    }
    // Takes time by its length only.
    for (const std::string piece : {"<", "&", "<!--", "<a '", "<script>", "</", "&#1", "<a =\"", "<p>",
                                    "<b></i>", "a", "a=", "'>a '"}) {
        std::string html = piece.front() == '<' ? "" : "<b ";
        for (int i = 0; html.size() < 300'000; ++i) {
            html += piece + (piece.front() == 'a' ? std::to_string(i) + " " : "");
        }
        EXPECT_TRUE(readHtml(html)) << piece;
    }
}

TEST(Feeds, datesAreReadInEveryLegalForm) {
    constexpr std::int64_t kTime = 1'071'340'202; // 2003-12-13T18:30:02Z
    const auto dateOf = [](const std::string& elements) {
        std::int64_t time = 0;
        const Result result = readFeed(atomEntry(elements))->entryAt(0)->getPublished(&time);
        return result == kOk ? std::optional(time) : std::nullopt;
    };
    const std::pair<std::string, std::optional<std::int64_t>> dates[] = {
        {" 2003-12-13t18:30:02z\n", kTime},
        {"2003-12-13 18:30:02.25Z", kTime},
        {"2003-12-13T18:30:02.123456789012345+01:00", kTime - 3600},
        {"2003-12-13T18:30:02-05:30", kTime + 19800},
        {"1998-12-31T23:59:60Z", 915'148'800},
        {"0001-01-01T00:00:00Z", -62'135'596'800},
        {"2003-02-29T00:00:00Z", {}},
        {"2003-12-13T24:00:00Z", {}},
        {"2003-12-13T18:30Z", {}},
        {"2003-12-13T18:30:02", {}},
        {"2003-12-13T18:30:02+99:00", {}},
        {"yesterday", {}},
        {"", {}},
    };
    for (const auto& [date, time] : dates) {
        EXPECT_EQ(dateOf("<published>" + date + "</published>"), time) << date;
        EXPECT_EQ(dateOf("<published>never</published><updated>" + date + "</updated>"), time) << date;
    }
    EXPECT_EQ(dateOf("<updated>2004-01-01T00:00:00Z</updated><published>2003-12-13T18:30:02Z</published>"),
              kTime);
}

TEST(Feeds, linksAreAbsolute) {
    const struct {
        std::string document;
        const char* links;
        const char* location = kLocation;
    } cases[] = {
        {atomEntry("<link href='a'/><link rel='enclosure' type='image/png' href='/b'/>"
                   "<link rel='http://www.iana.org/assignments/relation/alternate' href='?c'/>"
                   "<link rel='x:own' href='//cdn.example/d'/>"),
         "alternate  https://news.example/feeds/a\nenclosure image/png https://news.example/b\n"
         "alternate  https://news.example/feeds/feed.atom?c\nx:own  https://cdn.example/d\n"},
        {atom("<entry xml:base='posts/'><x xml:base='nowhere/'/><link href='1'/>"
              "<link xml:base='https://other.example/y/' href='2'/></entry>",
              "xml:base='/base/'"),
         "alternate  https://news.example/base/posts/1\nalternate  https://other.example/y/2\n"},
        {atomEntry("<link href=' https://a.example/ä b?q=%C3%A4&amp;s=a%2Fb+c '/><link rel='x'/>"
                   "<link href=''/><link href='http://[bad'/><link href='mailto:a@b.example'/>"),
         "alternate  https://a.example/%C3%A4%20b?q=%C3%A4&s=a%2Fb+c\nalternate  mailto:a@b.example\n"},
        {atomEntry("<link xmlns:x='urn:x' x:href='wrong' href='right' x:rel='self' rel='enclosure' "
                   "x:type='image/png'/>"),
         "enclosure image/png https://news.example/feeds/right\n"},
        {atomEntry("<link href='a/b'/><link href='https://c.example/'/>"),
         "alternate  a/b\nalternate  https://c.example/\n", ""},
    };
    for (const auto& [document, links, location] : cases) {
        EXPECT_EQ(linksOf(*readFeed(document, {}, location)->entryAt(0)), links);
    }
}

TEST(Feeds, tellTheirCategoriesAndAttributesInOrder) {
    const auto feed =
        readFeed(atom("<title>The news</title><entry><title>1</title><category term='a'/>"
                      "<category term='b' scheme='s'/><link rel='enclosure' devicePixelRatio='2x' href='i'/>"
                      "</entry><entry><title>2</title>" +
                      repeated("<category term='a'/><link href='x'/>", 65) + "</entry>"));
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
    EXPECT_EQ(feed->entryAt(1)->countCategories(), 64) << "and no more";
    EXPECT_EQ(feed->entryAt(1)->countLinks(), 64);
    EXPECT_EQ(feed->entryAt(2), nullptr);
    EXPECT_EQ(feed->entryAt(-1), nullptr);
}

std::string utf16(const QString& text, QStringConverter::Encoding encoding) {
    return QByteArray(QStringEncoder(encoding)(text)).toStdString();
}

TEST(Feeds, encodingsAreTakenAsDeclared) {
    const QString wide = "<?xml version='1.0' encoding='UTF-16'?><feed xmlns='http://www.w3.org/2005/Atom'>"
                         "<entry><title>ä€</title></entry></feed>";
    const auto declared = [](const char* encoding, const char* title) {
        return "<?xml version=\"1.0\" encoding=\"" + std::string(encoding) + "\"?>" +
               atomEntry("<title>" + std::string(title) + "</title>");
    };
    const std::pair<std::string, const char*> taken[] = {
        {"\xEF\xBB\xBF" + declared("iso-8859-1", "ä€"), "application/atom+xml; charset=latin1"},
        {utf16("\uFEFF" + wide, QStringConverter::Utf16BE), ""},
        {utf16(wide, QStringConverter::Utf16BE), ""},
        {utf16(wide, QStringConverter::Utf16LE), ""},
        {declared("windows-1252", "\xE4\x80"), ""},
        {declared("utf-8", "\xE4\x80"), "application/atom+xml;charset=\"Windows-1252\""},
    };
    for (const auto& [document, mimeType] : taken) {
        const auto feed = readFeed(document, mimeType);
        ASSERT_TRUE(feed) << document.substr(0, 60);
        EXPECT_EQ(view(feed->entryAt(0)->title()), "ä€") << document.substr(0, 60);
    }
    for (const auto& refused : {declared("utf-8", "\xE4"), declared("klingon", "a"), declared("utf-16", "a"),
                                utf16(wide, QStringConverter::Utf16BE) + "x"}) {
        EXPECT_FALSE(readFeed(refused)) << refused;
    }
}

TEST(Feeds, whatIsNoFeedIsRefusedAsAWhole) {
    const std::string entry = "<entry><title>a</title></entry>";
    const std::string half = "<feed xmlns='http://www.w3.org/2005/Atom'>" + entry;
    const std::string cases[] = {
        "",
        "<html><body>Sign in to this network</body></html>",
        "<feed><entry/></feed>",
        "<entry xmlns='http://www.w3.org/2005/Atom'/>",
        half,
        half + "</feed><feed/>",
        "<!DOCTYPE feed [<!ENTITY a 'aaaaaaaaaa'><!ENTITY b '&a;&a;&a;'>]>" + atom("<title>&b;</title>"),
        "<!DOCTYPE feed SYSTEM 'file:///etc/passwd'>" + atom(entry),
        atom(repeated("<x>", 70) + repeated("</x>", 70)),
        atom(repeated("<entry/>", 10'001)),
        atom("<entry>" + repeated("<link href='x'/>", 20'000) + "</entry>",
             "xml:base='https://x.example/" + std::string(2000, 'a') + "/'"),
        atom(entry + std::string(std::size_t{9} << 20U, ' ')),
    };
    for (const auto& document : cases) {
        EXPECT_FALSE(readFeed(document)) << document.substr(0, 200);
    }
    EXPECT_EQ(readFeed(atom(""))->countEntries(), 0) << "a feed without entries is one";
}

} // namespace

} // namespace xbr::host::test
