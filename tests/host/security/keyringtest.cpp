// With a real Secret Service.

#include "tests/host/security/keyringprobe.h"
#include "tests/host/security/stored.h"

#include <gmock/gmock.h>

#include <chrono>
#include <thread>

namespace xbr::host::test {

namespace {

using ::testing::Pair;
using ::testing::SizeIs;
using ::testing::UnorderedElementsAre;

/// The service counts in whole seconds which credential was stored last.
void waitForNextSecond() {
    std::this_thread::sleep_for(std::chrono::milliseconds(1100));
}

TEST(Keyring, keepsWhatWasStored) {
    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte) {
        everyByte += static_cast<char>(byte);
    }
    for (const std::string& password : {std::string(R"({"access_token":"é \" \\","expires":1})"),
                                        std::string(), std::string(100'000, 'k'), everyByte}) {
        EXPECT_EQ(add("Kept", "Täter", password), kOk);
        EXPECT_TRUE(find("Kept") == "Täter|" + password);
    }
    EXPECT_THAT(itemsOf("Kept"), SizeIs(1)) << "each one replaces the one before";
    EXPECT_EQ(remove("Kept"), kOk);
    EXPECT_EQ(find("Kept"), "none");
    EXPECT_EQ(remove("Kept"), kFalse);
}

TEST(Keyring, lastStoredIsFoundAndAllAreRemoved) {
    ASSERT_EQ(add("Other", "A", "0"), kOk);
    ASSERT_EQ(add("Target", "A", "1"), kOk);
    waitForNextSecond();
    ASSERT_EQ(add("Target", "B", "2"), kOk);
    EXPECT_EQ(find("Target"), "B|2");
    waitForNextSecond();
    ASSERT_EQ(add("Target", "A", "3"), kOk);
    EXPECT_EQ(find("Target"), "A|3");
    EXPECT_THAT(itemsOf("Target"), SizeIs(2));

    EXPECT_EQ(remove("Target"), kOk);
    EXPECT_EQ(find("Target"), "none");
    EXPECT_EQ(find("target"), "none") << "targets differ in case";
    EXPECT_EQ(find("Other"), "A|0");
    EXPECT_EQ(remove("Other"), kOk);
}

TEST(Keyring, showsNoMoreThanNeeded) {
    ASSERT_EQ(add("Seen", "U", "secret"), kOk);
    ASSERT_THAT(itemsOf("Seen"), SizeIs(1));
    EXPECT_EQ(itemsOf("Seen")[0].label, "Seen");
    EXPECT_THAT(itemsOf("Seen")[0].attributes,
                UnorderedElementsAre(Pair("target", "Seen"), Pair("user", "U"),
                                     Pair("xdg:schema", "com.brindlex.host.Credential")));
    ASSERT_EQ(add("Seen", "U", "secret", "of the studio"), kOk);
    ASSERT_THAT(itemsOf("Seen"), SizeIs(1)) << "the note is not looked up";
    EXPECT_EQ(itemsOf("Seen")[0].label, "Seen (of the studio)");
    EXPECT_EQ(remove("Seen"), kOk);
}

} // namespace

} // namespace xbr::host::test
