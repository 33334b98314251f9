#include "framework/support/data/url.h"

#include "framework/support/data/formencoding.h"

#include <gtest/gtest.h>

namespace {

using xbr::Url;

TEST(Url, ComesOutAsItWentIn) {
    for (const char* text :
         {"https://example.org/a/b?c=d&e=f#g", "file:///home/mara/My%20Song.wav", "brindlex:ok",
          "https://[::1]:8080/x", "relative/path", "brindlex://authorize?code=a%2Bb%2Fc%3D",
          "Brindlex://Authorize?next=/a/b&flag", "https://h/~me?a=%20&b=~&&c=*+x", "https://h/?",
          "https://h?#", "https://h/p#f?no=query", "https://"}) {
        EXPECT_EQ(Url(text).toString(), text);
    }
}

TEST(Url, ReadsParametersAsTheyWereSent) {
    struct Case {
        const char* url;
        const char* code;
    };
    const Case cases[] = {
        {"brindlex://authorize?code=abc#xyz", "abc"},
        {"BRINDLEX://authorize?x=1&code=a%2Bb%2Fc%3D%26%25", "a+b/c=&%"},
        {"brindlex:?code=a+b", "a b"},
        {"brindlex:?x&&code=%0a%9F%zz%4%", "\n\x9F%zz%4%"},
        {"brindlex://authorize?code=%C3%A9&code=second", "\xC3\xA9"},
        {"brindlex://authorize?code=%zz%4", "%zz%4"},
        {"brindlex://authorize?encode=1", ""},
        {"brindlex://authorize", ""},
    };
    for (const auto& [url, code] : cases) {
        EXPECT_EQ(Url(url).queryParameter("code"), code) << url;
        EXPECT_EQ(Url(url).protocol(), "brindlex") << url;
    }
}

TEST(Url, BeginsWithAScheme) {
    for (const auto& [url, protocol] : {std::pair{"azAZ09+-.:x", "azaz09+-."},
                                        {" https://h ", "https"},
                                        {"1a:x", ""},
                                        {"a_b:x", ""},
                                        {"a/b:x", ""},
                                        {"[a:x", ""},
                                        {"{a:x", ""},
                                        {"@a:x", ""},
                                        {"`a:x", ""},
                                        {"a;:x", ""},
                                        {":x", ""},
                                        {"", ""}}) {
        EXPECT_EQ(Url(url).protocol(), protocol) << url;
        EXPECT_EQ(Url(url).isEmpty(), Url(url).toString().empty()) << url;
    }
}

TEST(Url, AppendsPathsWithOneSlash) {
    struct Case {
        const char* base;
        const char* expected;
    };
    const Case cases[] = {{"https://h", "https://h/oauth/token"},
                          {"https://h/", "https://h/oauth/token"},
                          {"https://h/base", "https://h/base/oauth/token"},
                          {"", "/oauth/token"},
                          {"https://h/base/?q=1#f", "https://h/base/oauth/token"}};
    for (const auto& [base, expected] : cases) {
        Url url(base);
        url.appendPath("oauth/token");
        EXPECT_EQ(url.toString(), expected);
    }
    Url url("https://h/a/");
    url.appendPath("/b");
    EXPECT_EQ(url.toString(), "https://h/a/b");
}

TEST(Url, JoinsFileNamesAsPeopleWriteThem) {
    const Url folder("file:///tmp/a/");
    for (const char* name : {"My Song.wav", "50% off?.mp3", "na\xC3\xAFve#1.flac", "a+b=c.wav"}) {
        const Url file = folder.join(name);
        EXPECT_EQ(file.fileName(), name);
        EXPECT_EQ(Url(file.toString()).fileName(), name) << "survives being written and read";
        EXPECT_EQ(file.parent().toString(), "file:///tmp/a");
        EXPECT_EQ(Url(file.toString() + "?q#f").parent().toString(), "file:///tmp/a");
    }
}

TEST(Url, AddsParametersToWhatIsThere) {
    for (const auto& [base, expected] : {std::pair{"https://h/p", "https://h/p?a+b=c%26"},
                                         {"https://h/p?x=%7e#f", "https://h/p?x=%7e&a+b=c%26#f"}}) {
        Url url(base);
        url.addQueryParameter("a b", "c&");
        EXPECT_EQ(url.toString(), expected);
        EXPECT_EQ(url.queryParameter("a b"), "c&");
    }
}

TEST(Url, TellsFilesFromFolders) {
    EXPECT_TRUE(Url("file:///a/Song.FLAC").isLocalFile());
    EXPECT_EQ(Url("file:///a/Song.FLAC").extension(), "flac");
    EXPECT_FALSE(Url("file:///a/folder.wav/").isLocalFile());
    EXPECT_FALSE(Url("https://h/Song.wav").isLocalFile());
    EXPECT_FALSE(Url("file://song.wav").isLocalFile()) << "that is a computer";
    EXPECT_EQ(Url("file:///a/README").extension(), "");
}

TEST(FormEncoding, EscapesEverythingButTheRulesPlainCharacters) {
    EXPECT_EQ(xbr::formEncode({{"code", "a+b/c=&% ~\xC3\xA9"}, {"k k", ""}}),
              "code=a%2Bb%2Fc%3D%26%25+%7E%C3%A9&k+k=");
    const xbr::Pairs pairs{{"a", "1+1=2 & more"}, {"b", "\xE2\x82\xAC"}};
    EXPECT_EQ(xbr::formDecode(xbr::formEncode(pairs)), pairs);
}

} // namespace
