// Without a Secret Service, in each way that it can be missing.

#include "host/security/hostsecurity.h"
#include "tests/host/security/keyringprobe.h"
#include "tests/host/security/stored.h"

#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <thread>
#include <vector>

namespace xbr::host::test {

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

/// What the host hears while everything is tried.
std::vector<std::string> tryEverything() {
    std::vector<std::string> told;
    setStoreProblemListener([&](const std::string& words) { told.push_back(words); });
    EXPECT_EQ(find("Target"), "failed");
    EXPECT_EQ(remove("Target"), kUnexpected);
    EXPECT_THAT(told, ElementsAre());
    EXPECT_EQ(add("Target", "U", "secret"), kUnexpected);
    EXPECT_EQ(add("Target", "U", "secret"), kUnexpected);
    setStoreProblemListener({});
    return told;
}

void expectMissingAtOnce() {
    const auto start = std::chrono::steady_clock::now();
    const auto told = tryEverything();
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(4));
    ASSERT_THAT(told, ElementsAre(HasSubstr("no password store")));
    EXPECT_THAT(told[0], Not(HasSubstr("secret")));
}

TEST(NoBus, isMissingAtOnce) {
    expectMissingAtOnce();
    EXPECT_TRUE(std::filesystem::is_empty(environment("XDG_RUNTIME_DIR"))) << "a bus was started";
}

TEST(NoBus, addressThatWouldStartOne) {
    setEnvironment("DBUS_SESSION_BUS_ADDRESS", "autolaunch:");
    EXPECT_EQ(find("Target"), "failed");
    setEnvironment("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
    EXPECT_EQ(find("Target"), "failed");
    setEnvironment("DBUS_SESSION_BUS_ADDRESS", "");
}

TEST(NoBus, argumentsAreCheckedFirst) {
    const std::string zero("a\0b", 3);
    const std::string notUtf8("\xE9t\xE9");
    for (const std::string& bad : {zero, notUtf8}) {
        EXPECT_EQ(add(bad, "U", "secret"), kInvalidArgument);
        EXPECT_EQ(add("Target", bad, "secret"), kInvalidArgument);
        EXPECT_EQ(add("Target", "U", "secret", bad), kInvalidArgument);
        EXPECT_EQ(remove(bad), kInvalidArgument);
        EXPECT_EQ(find(bad), "failed");
    }
    EXPECT_EQ(add("", "U", "secret"), kInvalidArgument);
    EXPECT_EQ(remove(""), kInvalidArgument);
}

TEST(NoService, isMissingAndTheEndOfTheBusIsSurvived) {
    expectMissingAtOnce();
    endSessionBus();
    EXPECT_EQ(find("Target"), "failed");
}

TEST(DeafService, isMissingAfterAFewSeconds) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(find("Target"), "failed");
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(8));
}

TEST(DeafService, isLeftWhenTheProgramIsToEnd) {
    static std::atomic<bool> interrupted = false;
    setStoreInterruption([]() noexcept { return interrupted.load(); });
    std::thread user([] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        interrupted = true;
    });
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(find("Target"), "failed");
    const auto waited = std::chrono::steady_clock::now() - start;
    EXPECT_GT(waited, std::chrono::milliseconds(250));
    EXPECT_LT(waited, std::chrono::milliseconds(2000)) << "long before the service is given up";
    user.join();
    setStoreInterruption(nullptr);
}

} // namespace

} // namespace xbr::host::test
