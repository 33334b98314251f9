#include "host/base/textscan.h"

#include "host/base/problem.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace xbr::host {
namespace {

struct TextCase {
    std::string_view text;
    bool isUtf8;
    bool hasControls;
    std::string_view plain;
};

TEST(TextScan, TellsWhatTextsHold) {
    const TextCase cases[] = {
        {"", true, false, ""},
        {"N\xC3\xA4"
         "chte \xF0\x9F\x8E\xB5",
         true, false,
         "N\xC3\xA4"
         "chte \xF0\x9F\x8E\xB5"},
        {"a\nb\x7F", true, true, "a b "},
        {"a\xC2\x9B"
         "2J",
         true, true, "a 2J"}, // the C1 form of "ESC ["
        {"\xC2\xA0", true, false, "\xC2\xA0"},
        {"\xC2", false, false, "\xC2"},
        {"caf\xE9", false, false, "caf\xE9"},
        {"\xC0\xAF", false, false, "\xC0\xAF"},
        {"\xED\xA0\x80", false, false, "\xED\xA0\x80"},
        {"\xF4\x90\x80\x80", false, false, "\xF4\x90\x80\x80"},
    };
    for (const TextCase& each : cases) {
        SCOPED_TRACE(each.text);
        EXPECT_EQ(isUtf8(each.text), each.isUtf8);
        EXPECT_EQ(hasControls(each.text), each.hasControls);
        EXPECT_EQ(plainText(each.text), each.plain);
    }
}

TEST(TextScan, CutsBetweenCharacters) {
    EXPECT_EQ(firstCharacters("N\xC3\xA4"
                              "chte",
                              2),
              "N\xC3\xA4");
    EXPECT_EQ(firstCharacters("ab", 2), "ab");
    EXPECT_EQ(firstCharacters("ab", 0), "");
}

TEST(TextScan, DecodesPercents) {
    EXPECT_EQ(percentDecoded("a%20b%C3%a4"), "a b\xC3\xA4");
    for (const char* malformed : {"%", "a%2", "%zz", "%00"}) {
        EXPECT_EQ(percentDecoded(malformed), std::nullopt) << malformed;
    }
}

TEST(Problem, TellsTheFaultOfASystemCall) {
    EXPECT_EQ(fileProblem("/a", ENOSPC, Fault::kUnreadable).fault, Fault::kDiskFull);
    EXPECT_EQ(fileProblem("/a", ENOENT, Fault::kNotWritable).fault, Fault::kMissing);
    const Problem problem = fileProblem("/a", EACCES, Fault::kUnreadable);
    EXPECT_EQ(problem.fault, Fault::kUnreadable);
    EXPECT_EQ(problem.words, "Permission denied");
    EXPECT_FALSE(Problem{});
}

} // namespace
} // namespace xbr::host
