// Credentials in a real Secret Service, and each way in which they cannot be had.

#include "tests/host/security/keyringstage.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

namespace xbr::host::test {

namespace {

using ::testing::ElementsAre;
using ::testing::Pair;

constexpr Milliseconds kAtOnce{1500};
constexpr Milliseconds kPatience{5000}; // what the store is given

/// Tries everything: each ends with `result`, about when it should, and a window could be painted meanwhile.
void expectAll(StoreResult result, Milliseconds least = {}) {
    const std::pair<StoreOperation, std::function<void()>> operations[] = {
        {StoreOperation::kFind, [] { EXPECT_EQ(find("Target"), "failed"); }},
        {StoreOperation::kAdd, [] { EXPECT_EQ(add("Target", "U", "p"), kUnexpected); }},
        {StoreOperation::kRemove, [] { EXPECT_EQ(remove("Target"), kUnexpected); }}};
    for (const auto& [kind, operate] : operations) {
        const Hearing heard;
        operate();
        EXPECT_THAT(heard.results, ElementsAre(Pair(kind, result)));
        EXPECT_GE(heard.time(), least);
        EXPECT_LT(heard.time(), least + kAtOnce);
        least = std::min<Milliseconds>(least, std::chrono::seconds(1)); // it did not answer before
        EXPECT_GE(heard.looks, heard.time() / Milliseconds(200))
            << "others may take the processor for a moment";
    }
}

} // namespace

TEST(Keyring, keepsWhatWasStoredAndShowsNoMoreThanNeeded) {
    std::string everyByte;
    for (int byte = 0; byte < 256; ++byte) {
        everyByte += static_cast<char>(byte);
    }
    for (const auto& password : {everyByte, std::string(), std::string(100'000, 'k')}) {
        EXPECT_EQ(add("Kept", "Täter", password), kOk);
        EXPECT_TRUE(find("Kept") == "Täter|" + password);
    }
    const std::string attributes = ", target=Kept, user=Täter, xdg:schema=com.brindlex.host.Credential";
    EXPECT_THAT(itemsOf("Kept"), ElementsAre("Kept" + attributes)) << "each one replaces the one before";
    EXPECT_EQ(add("Kept", "Täter", "secret", "of the studio"), kOk);
    EXPECT_THAT(itemsOf("Kept"), ElementsAre("Kept (of the studio)" + attributes))
        << "the note is not looked up";
    EXPECT_EQ(remove("Kept"), kOk);
    EXPECT_EQ(find("Kept"), "none");
    EXPECT_EQ(remove("Kept"), kFalse);
}

TEST(Keyring, lastStoredIsFoundAndAllAreRemoved) {
    ASSERT_EQ(add("Other", "A", "0"), kOk);
    for (const auto& [user, password] : {std::pair{"A", "1"}, {"B", "2"}, {"A", "3"}}) {
        std::this_thread::sleep_for(Milliseconds(1100)); // the service counts in whole seconds
        ASSERT_EQ(add("Target", user, password), kOk);
        EXPECT_EQ(find("Target"), std::string(user) + "|" + password);
    }
    EXPECT_EQ(itemsOf("Target").size(), 2U);
    EXPECT_EQ(remove("Target"), kOk);
    EXPECT_EQ(find("Target"), "none");
    EXPECT_EQ(find("other"), "none") << "targets differ in case";
    EXPECT_EQ(find("Other"), "A|0");
    EXPECT_EQ(remove("Other"), kOk);
}

TEST(NoBus, isNoStoreAtOnce) {
    // GLib would launch a bus through the X11 display.
    const std::string folder = environment("XDG_RUNTIME_DIR");
    std::ofstream(folder + "/dbus-launch") << "#!/bin/sh\ntouch " << folder << "/launched\n";
    std::filesystem::permissions(folder + "/dbus-launch", std::filesystem::perms::owner_all);
    g_setenv("PATH", (folder + ":" + environment("PATH")).c_str(), TRUE);
    g_setenv("DISPLAY", ":1234", TRUE);
    for (const char* address : {"", "autolaunch:", "unix:path=/nowhere/bus"}) {
        g_setenv("DBUS_SESSION_BUS_ADDRESS", address, TRUE);
        expectAll(StoreResult::kNoStore);
        EXPECT_FALSE(isSessionBusSilent());
    }
    EXPECT_FALSE(std::filesystem::exists(folder + "/launched"));
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
    const std::string path = environment("XDG_RUNTIME_DIR") + "/bus"; // found without an address
    const int bus = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof(address.sun_path) - 1);
    ASSERT_EQ(bind(bus, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    ASSERT_EQ(listen(bus, 8), 0);
    EXPECT_TRUE(isSessionBusSilent());
    expectAll(StoreResult::kSilent, kPatience);
    close(bus);
}

TEST(NoService, isNoStoreAndTheEndOfTheBusIsSurvived) {
    expectAll(StoreResult::kNoStore);
    endSessionBus();
    expectAll(StoreResult::kNoStore);
}

TEST(DeafService, isGivenUpWhenTheUserWants) {
    const Hearing heard(Milliseconds(300));
    EXPECT_EQ(find("Target"), "failed");
    EXPECT_THAT(heard.results, ElementsAre(Pair(StoreOperation::kFind, StoreResult::kSilent)));
    EXPECT_GE(heard.time(), Milliseconds(300));
    EXPECT_LT(heard.time(), kAtOnce);
}

TEST(DeafService, theEndOfTheBusMeanwhileIsSurvived) {
    /// Ends the bus while the store is waited for, with the event loop of the program.
    struct BusEnding final : StoreListener {
        bool storeWaits(bool) override {
            if (!std::exchange(isEnded, true)) {
                endSessionBus();
            }
            runEventLoop();
            return true;
        }
        void storeAnswered(StoreOperation, StoreResult) override {}
        bool isEnded = false;
    } ending;
    setStoreListener(&ending);
    EXPECT_EQ(find("Target"), "failed");
    setStoreListener(nullptr);
    runEventLoop();
}

TEST(StoppedKeyring, isGivenUpInTimeAndLosesNothing) {
    ASSERT_EQ(add("Target", "U", "p"), kOk);
    sendSignal("STOP", "org.freedesktop.secrets");
    expectAll(StoreResult::kSilent, kPatience);
    sendSignal("CONT", "org.freedesktop.secrets");
    ASSERT_EQ(add("Target", "U", "q"), kOk);
    EXPECT_EQ(find("Target"), "U|q") << "what was given up is not done later";
    sendSignal("STOP", "org.freedesktop.secrets");
    const Hearing heard;
    EXPECT_EQ(find("Target"), "failed");
    EXPECT_GE(heard.time(), kPatience) << "it answered in between";
    sendSignal("CONT", "org.freedesktop.secrets");
}

TEST(LockedKeyring, isRefusedByAUserAndWhereNobodyCanBeAsked) {
    ASSERT_EQ(add("Target", "U", "secret"), kOk);
    lockKeyring();
    expectAll(StoreResult::kLocked);
    const Prompter prompter(Prompter::Answer::kRefused);
    expectAll(StoreResult::kLocked);
    EXPECT_EQ(Prompter::refusals, 3);
}

TEST(AskingKeyring, waitsAsLongAsTheUserNeeds) {
    ASSERT_EQ(add("Target", "U", "secret"), kOk);
    lockKeyring();
    const Prompter prompter(Prompter::Answer::kNone);
    const Hearing heard(kPatience + kAtOnce);
    EXPECT_EQ(find("Target"), "failed");
    EXPECT_THAT(heard.results, ElementsAre(Pair(StoreOperation::kFind, StoreResult::kLocked)));
    EXPECT_TRUE(heard.wasUserAsked);
    EXPECT_GE(heard.time(), kPatience + kAtOnce) << "nobody gave it up but the user";
}

} // namespace xbr::host::test
