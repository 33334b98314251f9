#include "framework/abi/textformats.h"
#include "framework/support/objects/text.h"

#include <gtest/gtest.h>

#include <vector>

namespace xbr::host::tests {
namespace {

std::string folded(std::string_view text) {
    Ref<IString> answer;
    EXPECT_EQ(XBRFoldCase(toText(text), answer.out()), kOk);
    return take(answer);
}

TEST(CaseFoldingTest, FoldsSimplyByCodePoint) {
    const std::vector<std::pair<const char*, const char*>> table = {
        {"", ""},
        {"Hello 123 /&", "hello 123 /&"},
        {"AXÉ", "axé"},
        {"STRASSE Straße", "strasse straße"}, // a full folding would make both the same
        {"ẞ", "ß"},                           // status S
        {"ΣΊΣΥΦΟΣ ς", "σίσυφοσ σ"},           // the final sigma, too
        {"İ", "İ"},                           // F and T only; it has no simple folding
        {"I ı", "i ı"},                       // not as in Turkish
        {"ᾈ ᾼ", "ᾀ ᾳ"},                       // status S
        {"K Ω", "k ω"},                       // the signs for Kelvin and Ohm
        {"ꭰ", "Ꭰ"},                         // Cherokee folds to the older, upper letters
        {"𐐀𐐧", "𐐨𐑏"},                         // Deseret, beyond 16 bits
        {"e\u0301", "e\u0301"},               // not composed
        {"ﬁ", "ﬁ"},
        {"A\xFF\xC3", "a\uFFFD\uFFFD"},
    };
    for (const auto& [text, expected] : table) {
        EXPECT_EQ(folded(text), expected);
    }
    EXPECT_EQ(folded(std::string_view("A\0B", 3)), std::string_view("a\0b", 3));
}

} // namespace
} // namespace xbr::host::tests
