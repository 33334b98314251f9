#include "tests/client/clientfixture.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace brindlex {

namespace {

using fakehost::host;

/// The dialog's modal run turns the event loop: everything can happen in there.
class ConnectDialogTest : public ClientFixture {
protected:
    /// Performs "connect" and lets `inside` happen in the dialog, once; dialogs within it stay quiet.
    void connectWith(std::function<void()> inside) {
        host().objects.onModalRun = [this, inside = std::move(inside)] {
            const auto self = std::exchange(host().objects.onModalRun, std::exchange(m_nested, nullptr));
            inside();
            host().signals.pump();
        };
        perform("connect");
    }

    void callback(const char* query) {
        manager->client().handleRedirect(xbr::Url(std::string("brindlex://authorize?") + query));
    }
    void command(const char* name) {
        manager->client().findParameter(xbr::toText(name))->setValue(xbr::integerValue(1));
    }
    static void answerToken() { host().web.answer(200, R"({"access_token":"A"})"); }

    static auto count(const char* entry) {
        return std::count(host().objects.log.begin(), host().objects.log.end(), entry);
    }
    static auto countRuns() { return count("run BrindlexConnectDialog 66"); }

    std::function<void()> m_nested; ///< what happens in a dialog that is opened in the dialog
};

TEST_F(ConnectDialogTest, WhateverHappensInTheDialogIsHarmless) {
    struct Case {
        const char* what;
        std::function<void()> inside;
        ClientState state; ///< after the dialog
        int closed;        ///< how often the dialog was told to close
    };
    const Case cases[] = {
        {"nothing", [] {}, ClientState::kAwaitingCode, 0},
        {"a good callback",
         [&] {
             callback("code=c");
             answerToken();
         },
         ClientState::kAuthorized, 1},
        {"a callback of somebody else's", [&] { callback("state=foreign"); }, ClientState::kAwaitingCode, 0},
        {"a refusal", [&] { callback("error=access_denied&error_description=no"); },
         ClientState::kAwaitingCode, 0},
        {"a refusal, and a change of mind",
         [&] {
             callback("error=access_denied");
             callback("code=c");
             answerToken();
         },
         ClientState::kAuthorized, 1},
        {"a code that the service does not know",
         [&] {
             callback("code=wrong&state=foreign");
             host().web.answer(400, R"({"error":"invalid_grant"})");
         },
         ClientState::kIdle, 1},
        {"two callbacks",
         [&] {
             callback("code=c");
             callback("code=d");
             answerToken();
         },
         ClientState::kAuthorized, 1},
        {"cancel", [&] { command("resetAuthorization"); }, ClientState::kIdle, 1},
        {"cancel in the exchange",
         [&] {
             callback("code=c");
             command("resetAuthorization");
         },
         ClientState::kIdle, 1},
        {"retry", [&] { command("retryAuthorization"); }, ClientState::kAwaitingCode, 0},
        {"retry in the exchange",
         [&] {
             callback("code=c");
             command("retryAuthorization");
             host().signals.pump(); // the late end of the exchange
             callback("code=d");
             answerToken();
         },
         ClientState::kAuthorized, 1},
        {"connect in the exchange",
         [&] {
             callback("code=c");
             perform("connect");
             answerToken();
         },
         ClientState::kAuthorized, 1},
    };
    for (const auto& [what, inside, state, closed] : cases) {
        connectWith(inside);
        EXPECT_EQ(manager->client().state(), state) << what;
        EXPECT_EQ(countRuns(), 1) << what;
        EXPECT_EQ(count("close"), closed) << what;
        EXPECT_FALSE(isEnabled("upload")) << what;
        manager->client().resetAuthorization(Silence::kTold);
        host().signals.pump();
        host().objects.log.clear();
        host().web.sent.clear();
    }
}

TEST_F(ConnectDialogTest, NoDialogOutlivesTheSignInThatItAsksFor) {
    struct Case {
        const char* what;
        std::function<void()> nested; ///< in the second dialog
        int closed;
    };
    const Case cases[] = {
        {"signed in",
         [&] {
             callback("code=c");
             answerToken();
         },
         2},
        {"cancelled",
         [&] {
             command("resetAuthorization");
             host().signals.pump();
         },
         2},
        {"closed from its frame", [] {}, 0},
    };
    for (const auto& [what, nested, closed] : cases) {
        m_nested = nested;
        connectWith([&] { perform("connect"); });
        EXPECT_EQ(countRuns(), 2) << what;
        EXPECT_EQ(count("close"), closed) << what;
        EXPECT_EQ(host().shell.opened.size(), 2U) << what << ": each opens the page";
        manager->client().resetAuthorization(Silence::kTold);
        host().signals.pump();
        host().objects.log.clear();
        host().shell.opened.clear();
    }
}

TEST_F(ConnectDialogTest, TheFirstDialogStillTakesTheCallbackAfterTheSecondWasClosed) {
    connectWith([&] {
        perform("connect");
        callback("code=c");
        answerToken();
    });
    EXPECT_TRUE(manager->client().isAuthorized());
    EXPECT_EQ(host().objects.log.back(), "close");
}

TEST_F(ConnectDialogTest, CallbacksBeforeAndAfterTheDialogChangeNothing) {
    callback("code=early");
    EXPECT_TRUE(host().web.sent.empty());
    connectWith([&] {
        callback("code=c");
        answerToken();
    });
    host().web.answer(200, R"({"user":{"name":"Mara"}})");
    host().web.sent.clear();
    callback("code=late");
    EXPECT_TRUE(host().web.sent.empty());
    EXPECT_EQ(text("userName"), "Mara");
}

TEST_F(ConnectDialogTest, PanelAndModuleMayGoWhileItRuns) {
    connectWith([&] {
        callback("code=c");
        manager.reset();
        module.reset();
        answerToken();
    });
    EXPECT_EQ(Manager::current(), nullptr);
    EXPECT_FALSE(host().web.isInFlight());
    EXPECT_EQ(host().signals.remaining(), 0U);
}

} // namespace

} // namespace brindlex
