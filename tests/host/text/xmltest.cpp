#include "framework/abi/textformats.h"
#include "framework/support/objects/text.h"
#include "tests/host/text/teststreams.h"

#include <gtest/gtest.h>

#include <vector>

namespace xbr::host::tests {
namespace {

/// Writes down what it receives.
class Handler final : public Object<IXmlHandler> {
public:
    void startElement(Text name, IStringDictionary* attributes) noexcept override {
        log += '<' + toString(name);
        for (std::int32_t i = 0; i < attributes->count(); ++i) {
            log += ' ' + toString(attributes->keyAt(i)) + '=' + toString(attributes->valueAt(i));
        }
        log += '>';
    }
    void endElement(Text name) noexcept override { log += "</" + toString(name) + '>'; }
    void characters(Text text) noexcept override { log += view(text); }

    std::string log;
};

std::string nestedElements(int depth) {
    return repeated("<a>", depth) + repeated("</a>", depth);
}

/// An element with that many attributes, of which each holds what looks like the end of the tag.
std::string crowded(int count) {
    std::string document = "<a";
    for (int i = 0; i < count; ++i) {
        document += " a" + std::to_string(i) + "='>'";
    }
    return document + "/>";
}

/// UTF-16 with a byte order mark; `text` is ASCII.
std::string utf16(std::string_view text) {
    std::string bytes = "\xFF\xFE";
    for (const char c : text) {
        bytes += {c, '\0'};
    }
    return bytes;
}

TEST(XmlParseTest, HandsOutThePartsInOrder) {
    const std::vector<std::pair<std::string, std::string>> table = {
        {R"(<?xml version="1.0" encoding="UTF-8"?><Gadget themeName="brindlex" formName='F'/>)",
         "<Gadget themeName=brindlex formName=F></Gadget>"},
        {"\xEF\xBB\xBF<a>1 &lt; 2 &amp; &#x41;<![CDATA[<b>]]><!-- c --><?p i?></a>\n", "<a>1 < 2 & A<b></a>"},
        {R"(<rss xmlns:m="urn:m"><m:c m:url="x">é</m:c></rss>)",
         "<rss xmlns:m=urn:m><m:c m:url=x>é</m:c></rss>"},
        {"<undeclared:name/>", "<undeclared:name></undeclared:name>"},
        {utf16(R"(<?xml version="1.0" encoding="UTF-16"?><a>b</a>)"), "<a>b</a>"},
        {"<a><!-- <b " + repeated("x='", 1000) + " --></a>", "<a></a>"},
        {"<a>" + repeated("='\"", 1000) + "</a>", "<a>" + repeated("='\"", 1000) + "</a>"},
        {"<a>" + repeated("é", 100'000) + "</a>", "<a>" + repeated("é", 100'000) + "</a>"},
    };
    for (const auto& [document, expected] : table) {
        const auto handler = make<Handler>();
        EXPECT_EQ(XBRXmlParse(streamOf(document).get(), handler.get()), kOk) << document;
        EXPECT_EQ(handler->log, expected);
    }
}

TEST(XmlParseTest, RefusesTheIllFormedAndTheDangerous) {
    for (const auto& document :
         {nestedElements(64), crowded(256), "<a><!--" + repeated("xxxxxxxxxx", 1'000'000) + "--></a>"}) {
        EXPECT_EQ(XBRXmlParse(streamOf(document).get(), make<Handler>().get()), kOk);
    }

    const std::vector<std::pair<const char*, std::string>> table = {
        {"empty", ""},
        {"text only", "hello"},
        {"unfinished", "<a><b></b>"},
        {"unfinished tag", "<a b="},
        {"crossed", "<a><b></a></b>"},
        {"two roots", "<a/><b/>"},
        {"attribute twice", R"(<a x="1" x="2"/>)"},
        {"unknown entity", "<a>&nbsp;</a>"},
        {"bad UTF-8", "<a>\xC3\x28</a>"},
        {"unknown encoding", R"(<?xml version="1.0" encoding="x-none"?><a/>)"},
        {"control character", "<a>\x01</a>"},
        {"plain DOCTYPE", "<!DOCTYPE a><a/>"},
        {"external DOCTYPE", R"(<!DOCTYPE a SYSTEM "file:///etc/passwd"><a/>)"},
        {"entity bomb", R"(<!DOCTYPE a [<!ENTITY b "bbbbbbbb"><!ENTITY c "&b;&b;&b;">]><a>&c;&c;</a>)"},
        {"another encoding", R"(<?xml version="1.0" encoding="ISO-8859-1"?><a/>)"},
        {"another encoding's bytes", "<a>\xE9</a>"},
        {"crowded tag", crowded(257)},
        {"crowded tag in a crowd", "<a><![CDATA[<]]>" + crowded(100'000) + "</a>"},
        {"crowded tag in UTF-16", utf16(crowded(100'000))},
        {"too deep", nestedElements(65)},
        {"depth bomb", nestedElements(1'000'000)},
        {"too large", "<a>" + std::string(16U << 20U, ' ') + "</a>"},
    };
    for (const auto& [what, document] : table) {
        const auto handler = make<Handler>();
        EXPECT_EQ(XBRXmlParse(streamOf(document).get(), handler.get()), kInvalidArgument) << what;
        EXPECT_EQ(handler->log.find("bbbb"), std::string::npos) << what;
        EXPECT_LE(handler->log.size(), 17U << 20U) << what;
    }
    const auto handler = make<Handler>();
    EXPECT_EQ(XBRXmlParse(make<BrokenStream>("<a/>").get(), handler.get()), kUnexpected);
}

} // namespace
} // namespace xbr::host::tests
