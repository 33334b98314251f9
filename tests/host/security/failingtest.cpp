// Each way in which credentials cannot be had.

#include "tests/host/security/keyringprobe.h"
#include "tests/host/security/stored.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <functional>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace xbr::host::test {

namespace {

using ::testing::ElementsAre;

constexpr Milliseconds kAtOnce{1500};
constexpr Milliseconds kPatience{5000}; // what the store is given

/// Tries everything: each ends with `result`, about when it should, and a window could be painted meanwhile.
void expectAll(StoreResult result, Milliseconds least = {}) {
    const std::function<void()> operations[] = {[] { EXPECT_EQ(find("Target"), "failed"); },
                                                [] { EXPECT_EQ(add("Target", "U", "p"), kUnexpected); },
                                                [] { EXPECT_EQ(remove("Target"), kUnexpected); }};
    for (const auto& operation : operations) {
        const Hearing heard;
        operation();
        EXPECT_THAT(heard.results, ElementsAre(result));
        EXPECT_GE(heard.time(), least);
        EXPECT_LT(heard.time(), least + kAtOnce);
        least = std::min<Milliseconds>(least, std::chrono::seconds(1)); // it did not answer before
        EXPECT_LT(heard.longestGap, Milliseconds(100));
    }
}

} // namespace

TEST(NoBus, isNoStoreAtOnce) {
    for (const char* address : {"", "autolaunch:", "unix:path=/nowhere/bus"}) {
        setEnvironment("DBUS_SESSION_BUS_ADDRESS", address);
        expectAll(StoreResult::kNoStore);
    }
    EXPECT_TRUE(std::filesystem::is_empty(environment("XDG_RUNTIME_DIR"))) << "a bus was started";
}

TEST(NoBus, argumentsAreCheckedFirst) {
    for (const std::string& bad : {std::string("a\0b", 3), std::string("\xE9t\xE9")}) {
        EXPECT_EQ(add(bad, "U", "secret"), kInvalidArgument);
        EXPECT_EQ(add("Target", bad, "secret"), kInvalidArgument);
        EXPECT_EQ(add("Target", "U", "secret", bad), kInvalidArgument);
        EXPECT_EQ(remove(bad), kInvalidArgument);
        EXPECT_EQ(find(bad), "failed");
    }
    EXPECT_EQ(add("", "U", "secret"), kInvalidArgument);
    EXPECT_EQ(remove(""), kInvalidArgument);
}

TEST(SilentBus, isGivenUpInTime) {
    // It accepts, and never says a word: not every call of GLib ends then.
    const std::string path = environment("XDG_RUNTIME_DIR") + "/silent";
    const int bus = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof(address.sun_path) - 1);
    ASSERT_EQ(bind(bus, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    ASSERT_EQ(listen(bus, 8), 0);
    setEnvironment("DBUS_SESSION_BUS_ADDRESS", ("unix:path=" + path).c_str());
    expectAll(StoreResult::kSilent, kPatience);
    close(bus);
}

TEST(NoService, isNoStoreAndTheEndOfTheBusIsSurvived) {
    expectAll(StoreResult::kNoStore);
    endSessionBus();
    expectAll(StoreResult::kNoStore);
}

TEST(DeafService, isGivenUpInTimeOrWhenTheUserWants) {
    expectAll(StoreResult::kSilent, kPatience);
    const Hearing heard(Milliseconds(300));
    EXPECT_EQ(find("Target"), "failed");
    EXPECT_THAT(heard.results, ElementsAre(StoreResult::kSilent));
    EXPECT_GE(heard.time(), Milliseconds(300));
    EXPECT_LT(heard.time(), kAtOnce);
}

TEST(StoppedKeyring, isGivenUpInTimeAndLosesNothing) {
    ASSERT_EQ(add("Target", "U", "p"), kOk);
    stopKeyring(true);
    expectAll(StoreResult::kSilent, kPatience);
    stopKeyring(false);
    ASSERT_EQ(add("Target", "U", "q"), kOk);
    EXPECT_EQ(find("Target"), "U|q") << "what was given up is not done later";
}

TEST(LockedKeyring, isRefusedByAUserAndWhereNobodyCanBeAsked) {
    ASSERT_EQ(add("Target", "U", "secret"), kOk);
    lockKeyring();
    expectAll(StoreResult::kLocked);
    const Prompter prompter(Prompter::Answer::kRefused);
    expectAll(StoreResult::kLocked);
    EXPECT_EQ(Prompter::refusals(), 3);
}

TEST(AskingKeyring, waitsAsLongAsTheUserNeeds) {
    ASSERT_EQ(add("Target", "U", "secret"), kOk);
    lockKeyring();
    const Prompter prompter(Prompter::Answer::kNone);
    const Hearing heard(kPatience + kAtOnce);
    EXPECT_EQ(find("Target"), "failed");
    EXPECT_THAT(heard.results, ElementsAre(StoreResult::kLocked));
    EXPECT_TRUE(heard.wasUserAsked);
    EXPECT_GE(heard.time(), kPatience + kAtOnce) << "nobody gave it up but the user";
    EXPECT_LT(heard.time(), kPatience + 2 * kAtOnce);
    EXPECT_LT(heard.longestGap, Milliseconds(100));
}

} // namespace xbr::host::test
