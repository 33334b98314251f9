// What the texts of a feed come to, in whatever form they are written.

#include "tests/host/net/feedfixture.h"

#include <gtest/gtest.h>

#include <ostream>

namespace xbr::host::test {

namespace {

struct TextCase {
    const char* name;
    std::string document;
    std::string title;
    std::string summary;
    std::string content;
};

void PrintTo(const TextCase& one, std::ostream* out) {
    *out << one.name;
}

class FeedTexts : public ::testing::TestWithParam<TextCase> {};

TEST_P(FeedTexts, arePlain) {
    const auto feed = readFeed({GetParam().document});
    ASSERT_TRUE(feed);
    ASSERT_EQ(feed->countEntries(), 1);
    const IFeedEntry& entry = *feed->entryAt(0);
    EXPECT_EQ(view(entry.title()), GetParam().title);
    EXPECT_EQ(view(entry.summary()), GetParam().summary);
    EXPECT_EQ(view(entry.content()), GetParam().content);
}

INSTANTIATE_TEST_SUITE_P(
    Atom, FeedTexts,
    ::testing::Values(
        TextCase{"text",
                 atomEntry("<title> Fish &amp;\n chips </title><summary type='text'>a &lt;b&gt; c</summary>"
                           "<content type='TEXT'><![CDATA[<i>as it is</i>]]></content>"),
                 "Fish & chips", "a <b> c", "<i>as it is</i>"},
        TextCase{"html",
                 atomEntry("<title type='html'>Less &amp;lt;br&amp;gt; &amp;amp; more</title>"
                           "<summary type='html'>&lt;p&gt;one&lt;/p&gt;&lt;p&gt;two &lt;b&gt;bold&lt;/b&gt;"
                           "&lt;br/&gt;three&lt;/p&gt;</summary>"
                           "<content type='text/html; charset=utf-8'>&lt;i>x&lt;/i></content>"),
                 "Less <br> & more", "one\ntwo bold\nthree", "x"},
        TextCase{"xhtml",
                 atomEntry("<title type='xhtml'><div xmlns='http://www.w3.org/1999/xhtml'>a <b>b</b></div>"
                           "</title><summary type='xhtml' xmlns:h='http://www.w3.org/1999/xhtml'><h:div>\n"
                           "<h:p>one</h:p><h:script>evil()</h:script><h:p>t<h:em>wo</h:em></h:p></h:div>"
                           "</summary>"),
                 "a b", "one\ntwo", ""},
        TextCase{"plainTextKeepsItsLines", atomEntry("<content type='text/plain'>\none\n two\n</content>"),
                 "", "", "one\n two"},
        TextCase{"noText",
                 atomEntry("<title>t</title><summary type='image/svg+xml'><svg>s</svg></summary>"
                           "<content type='image/png'>aGVsbG8=</content>"),
                 "t", "", ""},
        TextCase{"contentElsewhere", atomEntry("<content src='https://x.example/'>n</content>"), "", "", ""},
        TextCase{"foreignVocabularies",
                 atomEntry("<title>mine</title><x:title xmlns:x='urn:x'>theirs</x:title><y xmlns='urn:y'>"
                           "<title>inside</title></y><source><title>origin</title></source>"
                           "<m:summary xmlns:m='http://www.w3.org/2005/Atom'>prefixed</m:summary>"),
                 "mine", "prefixed", ""},
        TextCase{"firstOfSeveral", atomEntry("<title>one</title><title>two</title>"), "one", "", ""},
        TextCase{"elementInAText", atomEntry("<title>a<b>hidden</b>c</title>"), "ac", "", ""}),
    [](const auto& one) { return one.param.name; });

/// HTML as people write it, and what a reader sees of it.
TEST(FeedHtml, comesToPlainText) {
    const std::pair<const char*, const char*> cases[] = {
        {"a<!-- <b> -->b", "ab"},
        {"<style>p {}</style>x<SCRIPT>if (a</b) </script >y", "xy"},
        {"<script>never ends", ""},
        {"<a href='a>b' title=\"c>d\">link</a>", "link"},
        {"<p don't>can't</p>", "can't"},
        {"1 < 2 <3 & 4 &amp5; &nosuch; &#; &#x; &;", "1 < 2 <3 & 4 &amp5; &nosuch; &;"},
        {"&eacute;&Eacute;&euro;&hellip;&apos;&quot;&nbsp;&Omega;&zwnj;&yuml;",
         "éÉ€…'\"\xC2\xA0Ω\xE2\x80\x8Cÿ"},
        {"&#8217;&#x2019;&#X41;&#128512;", "’’A😀"},
        {"a&#0;&#8;&#xD800;&#1114112;&#99999999999;b", "ab"},
        {"<meta charset='latin1'>ä<title>t</title><textarea>u</textarea>ö", "ä\nö"},
        {"<ul><li>one<li>two</ul>end", "one\ntwo\nend"},
        {"<table><tr><td>a</td><td>b</td></tr></table>", "a b"},
        {"a<br><br><br>b", "a\nb"},
        {"<unclosed", ""},
        {"text <", "text <"},
        {"<!doctype html><?php x ?>t", "t"},
    };
    for (const auto& [html, text] : cases) {
        const auto feed =
            readFeed({atomEntry("<summary type='html'><![CDATA[" + std::string(html) + "]]></summary>")});
        ASSERT_TRUE(feed) << html;
        EXPECT_EQ(view(feed->entryAt(0)->summary()), text) << html;
    }
}

TEST(FeedHtml, takesTimeByItsLengthOnly) {
    for (const std::string piece : {"<", "&", "<!--", "<a '", "<script>", "</", "&#1", "<a =\"", "<p>",
                                    "<b></i>", "a", "a=", "'>a '"}) {
        std::string html = piece.front() == '<' ? "" : "<b ";
        for (int i = 0; html.size() < 300'000; ++i) {
            html += piece + (piece.front() == 'a' ? std::to_string(i) + " " : "");
        }
        EXPECT_TRUE(readFeed({atomEntry("<summary type='html'><![CDATA[" + html + "]]></summary>")}))
            << piece;
    }
}

} // namespace

} // namespace xbr::host::test
