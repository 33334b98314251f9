#include "framework/abi/textformats.h"
#include "framework/support/data/attributes.h"
#include "framework/support/objects/text.h"
#include "tests/host/text/teststreams.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace xbr::host::tests {
namespace {

Result parse(std::string_view document, Attributes& root) {
    return XBRJsonParse(streamOf(document).get(), &root);
}

std::string stringify(const Attributes& root) {
    const auto stream = make<MemoryStream>();
    if (XBRJsonStringify(&root, stream.get()) != kOk) {
        return "failed";
    }
    rewind(*stream);
    return readAll(*stream);
}

std::string nestedArrays(int depth) {
    std::string document = R"({"a":)";
    for (int i = 1; i < depth; ++i) {
        document += i % 2 == 0 ? R"({"a":)" : "[";
    }
    document += "1";
    for (int i = depth - 1; i >= 1; --i) {
        document += i % 2 == 0 ? '}' : ']';
    }
    return document + '}';
}

TEST(JsonParseTest, RefusesWhatIsNoDocumentAndLeavesTheRootAlone) {
    const std::vector<std::pair<const char*, std::string>> table = {
        {"empty", ""},
        {"white space", " \n"},
        {"array", "[1]"},
        {"array around an object", R"([{"a":1}])"},
        {"text", R"("text")"},
        {"number", "1"},
        {"null", "null"},
        {"unfinished", R"({"a":1,"b":{"c":)"},
        {"two documents", R"({"a":1}{"b":2})"},
        {"rest", R"({"a":1} x)"},
        {"comment", R"({"a":1 /* no */})"},
        {"trailing comma", R"({"a":1,})"},
        {"number too large", R"({"a":1,"b":1e999})"},
        {"NaN", R"({"a":NaN})"},
        {"bad UTF-8", "{\"a\":\"\xC3\x28\"}"},
        {"surrogate in UTF-8", "{\"a\":\"\xED\xA0\x80\"}"},
        {"lone surrogate", R"({"a":"\ud800"})"},
        {"control character", "{\"a\":\"\n\"}"},
        {"too deep", nestedArrays(65)},
        {"depth bomb", "{\"a\":" + repeated("[", 3'000'000)},
        {"too large", "{}" + repeated("        ", 8 << 20)},
    };
    for (const auto& [what, document] : table) {
        const auto root = make<Attributes>();
        root->set("kept", "as it was");
        EXPECT_EQ(parse(document, *root), kInvalidArgument) << what;
        EXPECT_EQ(root->count(), 1) << what;
        EXPECT_EQ(root->getString("kept"), "as it was") << what;
    }
    const auto root = make<Attributes>();
    const auto broken = make<BrokenStream>(R"({"a":1})");
    EXPECT_EQ(XBRJsonParse(broken.get(), root.get()), kUnexpected);
    EXPECT_EQ(root->count(), 0);
}

TEST(JsonParseTest, KeepsKindsAndRanges) {
    const auto root = make<Attributes>();
    ASSERT_EQ(parse(R"({"min":-9223372036854775808,"max":9223372036854775807,"over":9223372036854775808,
                        "far":123456789012345678901234567890,"small":-9223372036854775809,"whole":1.0,
                        "exp":1e3,"yes":true,"no":false,"nothing":null,"zero\u0000in":"\u00e9\ud834\udd1e"})",
                    *root),
              kOk);
    const std::vector<std::pair<const char*, Value>> table = {
        {"min", integerValue(std::numeric_limits<std::int64_t>::min())},
        {"max", integerValue(std::numeric_limits<std::int64_t>::max())},
        {"over", floatValue(9223372036854775808.0)},
        {"far", floatValue(123456789012345678901234567890.0)},
        {"small", floatValue(-9223372036854775808.0)},
        {"whole", floatValue(1.0)},
        {"exp", floatValue(1000.0)},
        {"yes", boolValue(true)},
        {"no", boolValue(false)},
        {"nothing", noValue()},
    };
    for (const auto& [name, expected] : table) {
        const Value value = root->get(std::string_view(name));
        EXPECT_EQ(value.kind, expected.kind) << name;
        EXPECT_EQ(value.boolean, expected.boolean) << name;
        EXPECT_EQ(value.integer, expected.integer) << name;
        EXPECT_EQ(value.number, expected.number) << name;
    }
    EXPECT_EQ(root->getString(std::string_view("zero\0in", 7)), "é𝄞");
}

TEST(JsonTest, ReadsAndWritesTheSameTreeInItsOrder) {
    const std::string document = R"({
  "z": 1,
  "a": {
    "empty": {},
    "list": [
      1,
      2.5,
      "x",
      null,
      true,
      [],
      {
        "b": "Axé \"quoted\"\n"
      }
    ]
  },
  "m": -3
})";
    const auto root = make<Attributes>();
    ASSERT_EQ(parse(document, *root), kOk);
    EXPECT_EQ(stringify(*root), document);

    const auto twice = make<Attributes>();
    ASSERT_EQ(parse("\xEF\xBB\xBF{\"a\":1,\"b\":2,\"a\":{\"c\":3}}", *twice), kOk);
    EXPECT_EQ(stringify(*twice), "{\n  \"a\": {\n    \"c\": 3\n  },\n  \"b\": 2\n}");

    const auto deep = make<Attributes>();
    ASSERT_EQ(parse(nestedArrays(64), *deep), kOk);
    EXPECT_NE(stringify(*deep), "failed");
    const auto outer = make<Attributes>();
    outer->set("a", objectValue(static_cast<IAttributes*>(deep.get())));
    EXPECT_EQ(stringify(*outer), "failed");
}

TEST(JsonStringifyTest, WritesWhateverItIsGiven) {
    const auto root = make<Attributes>();
    root->set("bad\xFF", "caf\xE9");
    root->set("infinite", floatValue(std::numeric_limits<double>::infinity()));
    root->set("large", integerValue(std::numeric_limits<std::int64_t>::max()));
    root->set("none", objectValue(nullptr));
    EXPECT_EQ(stringify(*root), "{\n  \"bad\uFFFD\": \"caf\uFFFD\",\n  \"infinite\": null,\n"
                                "  \"large\": 9223372036854775807,\n  \"none\": null\n}");
    EXPECT_EQ(XBRJsonStringify(root.get(), make<BrokenStream>("").get()), kUnexpected);
    EXPECT_EQ(stringify(*make<Attributes>()), "{}");

    // A tree that holds itself is too deep, however wide the way there is.
    const auto loop = make<Attributes>();
    loop->set("self", objectValue(static_cast<IAttributes*>(loop.get())));
    EXPECT_EQ(stringify(*loop), "failed");
    loop->set("self", noValue());
}

} // namespace
} // namespace xbr::host::tests
