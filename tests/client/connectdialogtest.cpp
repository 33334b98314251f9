#include "tests/client/clientfixture.h"

#include <algorithm>
#include <sstream>

namespace brindlex {

namespace {

/// The dialog's modal run turns the event loop: everything can happen in there.
class ConnectDialogTest : public ClientFixture {
protected:
    /// Does what the words say, one after the other: what a callback brings, how the service answers to a
    /// code, which button is pressed.
    void act(const std::string& script) {
        std::istringstream words(script);
        for (std::string word; words >> word;) {
            if (word.find('=') != std::string::npos) {
                manager->client().handleRedirect(xbr::Url("brindlex://authorize?" + word));
            } else if (word == "token" || word == "refused") {
                const bool isGood = word == "token";
                host().web.answer(isGood ? 200 : 400, isGood ? R"({"access_token":"A"})" : "{}");
            } else if (word == "pump") {
                host().signals.pump();
            } else if (word == "connect") {
                perform("connect");
            } else {
                fakehost::press(manager->client(), word.c_str());
            }
        }
    }

    /// Performs "connect" and lets `inside` happen in the dialog, once, and `nested` in a dialog within it.
    void connectWith(std::function<void()> inside, std::function<void()> nested = nullptr) {
        host().objects.log.clear();
        host().objects.onModalRun = [inside = std::move(inside), nested = std::move(nested)] {
            host().objects.onModalRun = nested;
            inside();
            host().signals.pump();
        };
        perform("connect");
    }

    static auto count(const char* entry) {
        return std::count(host().objects.log.begin(), host().objects.log.end(), entry);
    }
};

TEST_F(ConnectDialogTest, WhateverHappensInTheDialogIsHarmless) {
    using State = ClientState;
    // What happens, what the client comes to, and how often the dialog was told to close.
    for (const auto& [inside, state, closed] : Rows<const char*, State, int>{
             {"", State::kAwaitingCode, 0},
             {"code=c token", State::kAuthorized, 1},
             {"state=foreign", State::kAwaitingCode, 0},
             {"error=access_denied&error_description=no", State::kAwaitingCode, 0},
             {"error=access_denied code=c token", State::kAuthorized, 1},
             {"code=wrong&state=foreign refused", State::kIdle, 1},
             {"code=c code=d token", State::kAuthorized, 1},
             {"resetAuthorization", State::kIdle, 1},
             {"code=c resetAuthorization", State::kIdle, 1},
             {"retryAuthorization", State::kAwaitingCode, 0},
             {"code=c retryAuthorization pump code=d token", State::kAuthorized, 1}, // after the late end
             {"code=c connect token", State::kAuthorized, 1},
         }) {
        connectWith([this, script = inside] { act(script); });
        EXPECT_EQ(manager->client().state(), state) << inside;
        EXPECT_EQ(count("run BrindlexConnectDialog 66"), 1) << inside;
        EXPECT_EQ(count("close"), closed) << inside;
        EXPECT_FALSE(manager->findParameter(xbr::toText("upload"))->isEnabled()) << inside;
        signOut();
    }
}

TEST_F(ConnectDialogTest, NoDialogOutlivesTheSignInThatItAsksFor) {
    // What happens in the second dialog, in the first one afterwards, and who was told to close.
    for (const auto& [nested, afterwards, closed] :
         Rows<const char*, const char*, int>{{"code=c token", "", 2},
                                             {"resetAuthorization pump", "", 2},
                                             {"", "", 0},
                                             {"", "code=c token", 1}}) {
        host().shell.opened.clear();
        connectWith([this, script = std::string("connect ") + afterwards] { act(script); },
                    [this, script = nested] { act(script); });
        EXPECT_EQ(count("run BrindlexConnectDialog 66"), 2) << nested;
        EXPECT_EQ(count("close"), closed) << nested << afterwards;
        EXPECT_EQ(host().shell.opened.size(), 2U) << nested << ": each opens the page";
        signOut();
    }
}

TEST_F(ConnectDialogTest, CallbacksBeforeAndAfterTheDialogChangeNothing) {
    act("code=early");
    EXPECT_TRUE(host().web.sent.empty());
    connectWith([this] { act("code=c token"); });
    host().web.answer(200, R"({"user":{"name":"Mara"}})");
    host().web.sent.clear();
    act("code=late");
    EXPECT_TRUE(host().web.sent.empty());
    EXPECT_EQ(text("userName"), "Mara");
}

TEST_F(ConnectDialogTest, PanelAndModuleMayGoWhileItRuns) {
    connectWith([this] {
        act("code=c");
        manager.reset();
        module.reset();
        act("token");
    });
    EXPECT_EQ(Manager::current(), nullptr);
    EXPECT_FALSE(host().web.isInFlight());
    EXPECT_EQ(host().signals.remaining(), 0U);
}

} // namespace

} // namespace brindlex
