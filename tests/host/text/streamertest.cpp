#include "framework/abi/textformats.h"
#include "framework/support/objects/text.h"
#include "tests/host/text/teststreams.h"

#include <gtest/gtest.h>

#include <vector>

namespace xbr::host::tests {
namespace {

using Lines = std::vector<std::string>;

Lines linesOf(IStream& stream, Result& last) {
    Ref<ITextStreamer> streamer;
    EXPECT_EQ(XBRCreateTextStreamer(&stream, streamer.out()), kOk);
    Lines lines;
    Ref<IString> line;
    while ((last = streamer->readLine(line.out())) == kOk) {
        lines.push_back(take(line));
    }
    EXPECT_FALSE(line);
    return lines;
}

TEST(TextStreamerTest, SplitsLines) {
    const std::string almost(16'383, 'x'); // the line end falls between two pieces of the stream
    const std::string large(100'000, 'y');
    const std::vector<std::pair<std::string, Lines>> table = {
        {"", {}},
        {"\xEF\xBB\xBF", {}},
        {"\n", {""}},
        {"a\nb", {"a", "b"}},
        {"a\r\nb\r\n", {"a", "b"}},
        {"a\n\n\nb\n", {"a", "", "", "b"}},
        {"a\rb\r", {"a\rb\r"}},
        {"\xEF\xBB\xBFTechno\n\xEF\xBB\xBF", {"Techno", "\xEF\xBB\xBF"}},
        {almost + "\r\nnext", {almost, "next"}},
        {almost + "\n" + almost + "\n", {almost, almost}},
        {large + "\n" + large, {large, large}},
    };
    for (const auto& [text, expected] : table) {
        Result last = kOk;
        EXPECT_EQ(linesOf(*streamOf(text), last), expected);
        EXPECT_EQ(last, kFalse);
    }
    const auto broken = make<BrokenStream>("a\nb");
    Result last = kOk;
    linesOf(*broken, last);
    EXPECT_EQ(last, kUnexpected);
}

TEST(StringDictionaryTest, KeepsTheOrderAndRepeatedKeys) {
    Ref<IStringDictionary> dictionary;
    ASSERT_EQ(XBRCreateStringDictionary(dictionary.out()), kOk);
    dictionary->append(toText("b"), toText("1"));
    dictionary->append(toText("a"), toText("2"));
    dictionary->append(toText("b"), toText("3"));
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
    EXPECT_EQ(dictionary->get(toText("c"), &value), kOk);
}

} // namespace
} // namespace xbr::host::tests
