// JSON, XML, lines and case: what is read and written, and what is refused.

#include "framework/abi/textformats.h"
#include "framework/support/data/attributes.h"
#include "framework/support/objects/text.h"
#include "tests/fixtures/streams.h"

#include <QStringEncoder>
#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace xbr::host::tests {
namespace {

class BrokenStream final : public Object<IStream> {
public:
    Result read(void*, std::uint64_t, std::uint64_t*) noexcept override { return kUnexpected; }
    Result write(const void*, std::uint64_t, std::uint64_t*) noexcept override { return kUnexpected; }
    Result seek(std::int64_t, SeekOrigin, std::int64_t*) noexcept override { return kUnexpected; }
};

Result parse(std::string_view document, Attributes& root) {
    return XBRJsonParse(streamOf(document).get(), &root);
}

/// Empty when it cannot be written.
std::string stringify(const Attributes& root) {
    const auto stream = make<MemoryStream>();
    const bool isWritten = XBRJsonStringify(&root, stream.get()) == kOk;
    rewind(*stream);
    return isWritten ? readAll(*stream) : "";
}

/// Sixty-four objects and arrays inside each other, around something.
std::string nested(const std::string& core) {
    return repeated(R"({"a":[)", 32) + core + repeated("]}", 32);
}

TEST(Json, whatIsNoDocumentIsRefusedAndLeavesTheRootAlone) {
    const std::string table[] = {
        "",
        R"([{"a":1}])",
        R"("text")",
        R"({"a":1,"b":{"c":)",
        R"({"a":1}{"b":2})",
        R"({"a":1,"b":1e999})",
        "{\"a\":1,\"b\":\"\xC3\x28\"}",
        nested("{}"),
        "{\"a\":" + repeated("[", 3'000'000),
        "{}" + repeated("        ", 8 << 20),
    };
    for (const std::string& document : table) {
        const auto root = make<Attributes>();
        root->set("kept", "as it was");
        EXPECT_EQ(parse(document, *root), kInvalidArgument) << document.substr(0, 99);
        EXPECT_EQ(stringify(*root), "{\n  \"kept\": \"as it was\"\n}") << document.substr(0, 99);
    }
    const auto root = make<Attributes>();
    EXPECT_EQ(XBRJsonParse(make<BrokenStream>().get(), root.get()), kUnexpected);
    EXPECT_EQ(root->count(), 0);
}

TEST(Json, isWrittenAsItWasReadInItsOrderAndRanges) {
    const std::string document = R"({
  "min": -9223372036854775808,
  "max": 9223372036854775807,
  "list": [
    1.0,
    "Axé\n",
    null,
    true,
    false,
    [],
    {
      "empty": {}
    }
  ],
  "a": -3
})";
    const std::pair<std::string, std::string> table[] = {
        {document, document},
        {R"({"a":9223372036854775808})", "{\n  \"a\": 9.223372036854776e+18\n}"},
        {R"({"a":-9223372036854775809})", "{\n  \"a\": -9.223372036854776e+18\n}"},
        {"\xEF\xBB\xBF{\"a\":1,\"b\":2,\"a\":{\"c\":3}}", "{\n  \"a\": {\n    \"c\": 3\n  },\n  \"b\": 2\n}"},
    };
    for (const auto& [from, to] : table) {
        const auto root = make<Attributes>();
        EXPECT_EQ(parse(from, *root), kOk);
        EXPECT_EQ(stringify(*root), to);
    }
    for (const auto& most : {nested("1"), repeated("{\"a\":", 64) + "1" + repeated("}", 64)}) {
        const auto deep = make<Attributes>();
        const auto outer = make<Attributes>();
        EXPECT_EQ(parse(most, *deep), kOk);
        EXPECT_NE(stringify(*deep), "");
        outer->set("a", objectValue(static_cast<IAttributes*>(deep.get())));
        EXPECT_EQ(stringify(*outer), "") << "one more is too deep";
        outer->set("a", objectValue(static_cast<IAttributes*>(outer.get())));
        EXPECT_EQ(stringify(*outer), "") << "as is what holds itself";
        outer->set("a", noValue());
    }
    const auto odd = make<Attributes>();
    odd->set("bad\xFF", "caf\xE9");
    odd->set("infinite", floatValue(std::numeric_limits<double>::infinity()));
    odd->set("none", objectValue(nullptr));
    EXPECT_EQ(stringify(*odd),
              "{\n  \"bad\uFFFD\": \"caf\uFFFD\",\n  \"infinite\": null,\n  \"none\": null\n}");
    EXPECT_EQ(XBRJsonStringify(odd.get(), make<BrokenStream>().get()), kUnexpected);
}

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

/// An element with that many attributes, of which each holds what looks like the end of the tag.
std::string crowded(int count) {
    std::string document = "<a";
    for (int i = 0; i < count; ++i) {
        document += " a" + std::to_string(i) + "='>'";
    }
    return document + "/>";
}

/// UTF-16 with a byte order mark.
std::string utf16(const std::string& text) {
    QStringEncoder encoder(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom);
    return QByteArray(encoder(QString::fromStdString(text))).toStdString();
}

TEST(Xml, partsAreHandedOutInOrder) {
    const std::string nestedMost = repeated("<a>", 64) + repeated("</a>", 64);
    const std::pair<std::string, std::string> table[] = {
        {R"(<?xml version="1.0" encoding="UTF-8"?><Gadget themeName="brindlex" formName='F'/>)",
         "<Gadget themeName=brindlex formName=F></Gadget>"},
        {"\xEF\xBB\xBF<a>1 &lt; 2 &amp; &#x41;<![CDATA[<b>]]><!-- c --><?p i?></a>\n", "<a>1 < 2 & A<b></a>"},
        {R"(<rss xmlns:m="urn:m"><m:c m:url="x">é</m:c></rss>)",
         "<rss xmlns:m=urn:m><m:c m:url=x>é</m:c></rss>"},
        {"<undeclared:name/>", "<undeclared:name></undeclared:name>"},
        {utf16(R"(<?xml version="1.0" encoding="UTF-16"?><a>b</a>)"), "<a>b</a>"},
        {R"(<?xml version="1.0" encoding="us-ascii"?><a/>)", "<a></a>"},
        {"<a><!-- <b " + repeated("x='", 1000) + " --></a>", "<a></a>"},
        {"<a>" + repeated("='\"", 1000) + "</a>", "<a>" + repeated("='\"", 1000) + "</a>"},
        {"<a><!--" + repeated("xxxxxxxxxx", 1'000'000) + "--></a>", "<a></a>"},
        {nestedMost, nestedMost},
    };
    for (const auto& [document, expected] : table) {
        const auto handler = make<Handler>();
        EXPECT_EQ(XBRXmlParse(streamOf(document).get(), handler.get()), kOk) << document.substr(0, 99);
        EXPECT_EQ(handler->log, expected);
    }
    EXPECT_EQ(XBRXmlParse(streamOf(crowded(256)).get(), make<Handler>().get()), kOk);
}

TEST(Xml, theIllFormedAndTheDangerousIsRefused) {
    const std::string table[] = {
        "",
        "<a><b></b>",
        "<a>\xC3\x28</a>",
        R"(<?xml version="1.0" encoding="x-none"?><a/>)",
        R"(<?xml version="1.0" encoding="ISO-8859-1"?><a/>)",
        "<!DOCTYPE a><a/>",
        R"(<!DOCTYPE a [<!ENTITY b "bbbbbbbb"><!ENTITY c "&b;&b;&b;">]><a>&c;&c;</a>)",
        crowded(257),
        "<a><![CDATA[<]]>" + crowded(100'000) + "</a>",
        utf16(crowded(100'000)),
        repeated("<a>", 65) + repeated("</a>", 65),
        "<a>" + std::string(16U << 20U, ' ') + "</a>",
    };
    for (const std::string& document : table) {
        const auto handler = make<Handler>();
        EXPECT_EQ(XBRXmlParse(streamOf(document).get(), handler.get()), kInvalidArgument)
            << document.substr(0, 99);
        EXPECT_EQ(handler->log.find("bbbb"), std::string::npos) << document.substr(0, 99);
    }
    EXPECT_EQ(XBRXmlParse(make<BrokenStream>().get(), make<Handler>().get()), kUnexpected);
}

std::vector<std::string> linesOf(IStream& stream, Result& last) {
    Ref<ITextStreamer> streamer;
    XBRCreateTextStreamer(&stream, streamer.out());
    std::vector<std::string> lines;
    Ref<IString> line;
    while ((last = streamer->readLine(line.out())) == kOk) {
        lines.push_back(take(line));
    }
    return lines;
}

TEST(TextStreamer, splitsLines) {
    const std::string almost(16'383, 'x'); // the line end falls between two pieces of the stream
    const std::string large(100'000, 'y');
    const std::pair<std::string, std::vector<std::string>> table[] = {
        {"", {}},
        {"a\nb", {"a", "b"}},
        {"a\r\n\n\r\nb\r\n", {"a", "", "", "b"}},
        {"a\rb\r", {"a\rb\r"}},
        {"\xEF\xBB\xBFTechno\n\xEF\xBB\xBF", {"Techno", "\xEF\xBB\xBF"}},
        {almost + "\r\nnext", {almost, "next"}},
        {almost + "\n" + almost + "\n", {almost, almost}},
        {large + "\n" + large, {large, large}},
    };
    Result last = kOk;
    for (const auto& [text, expected] : table) {
        EXPECT_EQ(linesOf(*streamOf(text), last), expected);
        EXPECT_EQ(last, kFalse);
    }
    linesOf(*make<BrokenStream>(), last);
    EXPECT_EQ(last, kUnexpected);
}

TEST(StringDictionary, keepsTheOrderAndRepeatedKeys) {
    Ref<IStringDictionary> dictionary;
    XBRCreateStringDictionary(dictionary.out());
    for (const auto& [key, value] : {std::pair{"b", "1"}, {"a", "2"}, {"b", "3"}}) {
        dictionary->append(toText(key), toText(value));
    }
    dictionary->set(toText("b"), toText("4"));
    dictionary->set(toText("c"), Text{});
    std::string pairs;
    for (std::int32_t i = -1; i <= dictionary->count(); ++i) {
        pairs += toString(dictionary->keyAt(i)) + '=' + toString(dictionary->valueAt(i)) + ' ';
    }
    EXPECT_EQ(pairs, "= b=4 a=2 b=3 c= = ");
    Text value = toText("old");
    EXPECT_EQ(dictionary->get(toText("B"), &value), kFalse);
    EXPECT_EQ(value.length, 0U);
    EXPECT_EQ(dictionary->get(toText("a"), &value), kOk);
    EXPECT_EQ(view(value), "2");
}

TEST(CaseFolding, isSimpleAndByCodePoint) {
    const std::pair<std::string_view, std::string_view> table[] = {
        {"", ""},
        {{"A\0B", 3}, {"a\0b", 3}},
        {"AXÉ 123 /&", "axé 123 /&"},
        {"STRASSE Straße ẞ", "strasse straße ß"}, // a full folding would make the first two the same
        {"ΣΊΣΥΦΟΣ ς", "σίσυφοσ σ"},               // the final sigma, too
        {"İ I ı", "İ i ı"},                       // not as in Turkish
        {"𐐀𐐧", "𐐨𐑏"},                             // Deseret, beyond 16 bits
        {"e\u0301 ﬁ", "e\u0301 ﬁ"},               // not composed
        {"A\xFF\xC3", "a\uFFFD\uFFFD"},
    };
    for (const auto& [text, expected] : table) {
        Ref<IString> folded;
        EXPECT_EQ(XBRFoldCase(toText(text), folded.out()), kOk);
        EXPECT_EQ(take(folded), expected);
    }
}

} // namespace
} // namespace xbr::host::tests
