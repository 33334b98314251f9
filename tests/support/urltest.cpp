#include "framework/support/data/url.h"

#include "framework/support/data/formencoding.h"
#include "tests/fakehost/answers.h"

#include <gtest/gtest.h>

namespace {

using fakehost::Rows;
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
    for (const auto& [url, code] : Rows<const char*, const char*>{
             {"brindlex://authorize?code=abc#xyz", "abc"},
             {"BRINDLEX://authorize?x=1&code=a%2Bb%2Fc%3D%26%25", "a+b/c=&%"},
             {"brindlex:?code=a+b", "a b"},
             {"brindlex:?x&&code=%0a%9F%zz%4%", "\n\x9F%zz%4%"},
             {"brindlex://authorize?code=%C3%A9&code=second", "\xC3\xA9"},
             {"brindlex://authorize?encode=1", ""},
             {"brindlex://authorize", ""},
         }) {
        EXPECT_EQ(Url(url).queryParameter("code"), code) << url;
    }
}

TEST(Url, BeginsWithAScheme) {
    for (const auto& [url, protocol] :
         Rows<const char*, const char*>{{"azAZ09+-.:x", "azaz09+-."}, {" https://h ", "https"}}) {
        EXPECT_EQ(Url(url).protocol(), protocol) << url;
    }
    for (const char* url : {"1a:x", "a_b:x", "a/b:x", "[a:x", "{a:x", "@a:x", "`a:x", "a;:x", ":x", ""}) {
        EXPECT_EQ(Url(url).protocol(), "") << url;
        EXPECT_EQ(Url(url).isEmpty(), Url(url).toString().empty()) << url;
    }
}

TEST(Url, AppendsPathsWithOneSlashAndParametersToWhatIsThere) {
    for (const auto& [base, path, expected] : Rows<const char*, const char*, const char*>{
             {"https://h", "oauth/token", "https://h/oauth/token"},
             {"https://h/", "oauth/token", "https://h/oauth/token"},
             {"https://h/base", "oauth/token", "https://h/base/oauth/token"},
             {"", "oauth/token", "/oauth/token"},
             {"https://h/base/?q=1#f", "oauth/token", "https://h/base/oauth/token"},
             {"https://h/a/", "/b", "https://h/a/b"},
         }) {
        Url url(base);
        url.appendPath(path);
        EXPECT_EQ(url.toString(), expected);
    }
    for (const auto& [base, expected] : Rows<const char*, const char*>{
             {"https://h/p", "https://h/p?a+b=c%26"},
             {"https://h/p?x=%7e#f", "https://h/p?x=%7e&a+b=c%26#f"},
         }) {
        Url url(base);
        url.addQueryParameter("a b", "c&");
        EXPECT_EQ(url.toString(), expected);
    }
}

TEST(Url, JoinsFileNamesAsPeopleWriteThem) {
    for (const char* name : {"My Song.wav", "50% off?.mp3", "na\xC3\xAFve#1.flac", "a+b=c.wav"}) {
        const Url file = Url("file:///tmp/a/").join(name);
        EXPECT_EQ(file.fileName(), name);
        EXPECT_EQ(Url(file.toString()).fileName(), name) << "survives being written and read";
        EXPECT_EQ(file.parent().toString(), "file:///tmp/a");
        EXPECT_EQ(Url(file.toString() + "?q#f").parent().toString(), "file:///tmp/a");
    }
}

TEST(Url, TellsFilesFromFolders) {
    for (const auto& [url, isFile, extension] : Rows<const char*, bool, const char*>{
             {"file:///a/Song.FLAC", true, "flac"},
             {"file:///a/README", true, ""},
             {"file:///a/folder.wav/", false, ""},
             {"https://h/Song.wav", false, "wav"},
             {"file://song.wav", false, ""}, // that is a computer
         }) {
        EXPECT_EQ(Url(url).isLocalFile(), isFile) << url;
        EXPECT_EQ(Url(url).extension(), extension) << url;
    }
}

TEST(FormEncoding, EscapesEverythingButTheRulesPlainCharacters) {
    const xbr::Pairs pairs{{"code", "a+b/c=&% ~\xC3\xA9"}, {"k k", ""}};
    EXPECT_EQ(xbr::formEncode(pairs), "code=a%2Bb%2Fc%3D%26%25+%7E%C3%A9&k+k=");
    EXPECT_EQ(xbr::formDecode(xbr::formEncode(pairs)), pairs);
}

} // namespace
