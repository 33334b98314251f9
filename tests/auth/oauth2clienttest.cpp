#include "auth/oauth2client.h"

#include "framework/support/objects/text.h"
#include "tests/fakehost/fakehost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace {

using brindlex::ClientState;
using brindlex::OAuth2Client;
using brindlex::Silence;
using fakehost::host;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using xbr::Url;

constexpr const char* kReply = R"({"access_token":"A","refresh_token":"R","expires_in":60})";

/// Writes down what the client tells.
class Listener final : public xbr::Object<xbr::IObserver> {
public:
    explicit Listener(OAuth2Client& client) : m_client(client) {}
    void notify(xbr::ISubject*, xbr::IMessage* message) noexcept override {
        const std::string name = xbr::toString(message->name());
        heard.push_back(name == "propertyChanged" ? std::to_string(static_cast<int>(m_client.state()))
                                                  : name);
        if (m_client.state() == resetAt) {
            resetAt.reset();
            m_client.resetAuthorization(Silence::kSilent);
        }
    }

    std::vector<std::string> heard;
    std::optional<ClientState> resetAt; ///< where the user gives up

private:
    OAuth2Client& m_client;
};

/// Does something as soon as the client comes to a state.
class Acting final : public xbr::Object<xbr::IObserver> {
public:
    Acting(OAuth2Client& client, ClientState state, std::function<void()> act)
        : m_client(client),
          m_state(state),
          m_act(std::move(act)) {}
    void notify(xbr::ISubject*, xbr::IMessage*) noexcept override {
        if (m_client.state() == m_state) {
            m_act();
        }
    }

private:
    OAuth2Client& m_client;
    ClientState m_state;
    std::function<void()> m_act;
};

class OAuth2ClientTest : public testing::Test {
protected:
    OAuth2ClientTest() {
        fakehost::resetHost();
        client = xbr::make<OAuth2Client>();
        brindlex::ServiceConfiguration configuration;
        configuration.serverUrl = Url("https://service.example/base?tenant=1#top");
        configuration.callbackUrl = Url("brindlex://authorize?next=/a&flag&x=%20~");
        configuration.consumerKey = "key";
        configuration.consumerSecret = "se&cret";
        configuration.joinToken = "join";
        client->setConfiguration(configuration);
        client->setCredentialName("Name");
        listener = xbr::make<Listener>(*client);
        host().signals.addObserver(client.get(), listener.get());
    }

    void reachTokenRequest() {
        ASSERT_TRUE(client->getAuthorizationCode());
        ASSERT_TRUE(client->handleRedirect(Url("brindlex://authorize?code=abc")));
    }

    void signIn() {
        reachTokenRequest();
        host().web.answer(200, kReply);
        ASSERT_TRUE(client->isAuthorized());
        listener->heard.clear();
    }

    /// The states that were passed through, and the messages; one that was not posted is marked.
    std::vector<std::string> told() {
        host().signals.pump();
        auto names = listener->heard;
        for (std::string& name : names) {
            const auto& posted = host().signals.postedSignals;
            const bool isState = name.size() == 1;
            name +=
                isState || std::find(posted.begin(), posted.end(), name) != posted.end() ? "" : " at once";
        }
        names.erase(std::unique(names.begin(), names.end()), names.end()); // busy changes repeat the state
        return names;
    }

    xbr::Ref<OAuth2Client> client;
    xbr::Ref<Listener> listener;
};

TEST_F(OAuth2ClientTest, OpensTheExactAuthorizationUrl) {
    const std::string expected =
        "https://service.example/base/oauth/authorize?client_id=key&redirect_uri="
        "brindlex%3A%2F%2Fauthorize%3Fnext%3D%2Fa%26flag%26x%3D%2520%7E&response_type=code";
    struct Case {
        bool has;
        bool allowed;
        std::string url;
    };
    for (const auto& [has, allowed, url] : {Case{false, false, expected}, Case{true, false, expected},
                                            Case{true, true, expected + "&jt=join"}}) {
        host().objects.hasJoinTokenPermission = has;
        host().objects.joinTokenAllowed = allowed;
        client->retryAuthorization();
        EXPECT_EQ(host().shell.opened.back(), url);
    }
    for (const char* never : {"state=", "scope=", "code_challenge"}) {
        EXPECT_EQ(host().shell.opened.back().find(never), std::string::npos) << never;
    }
}

TEST_F(OAuth2ClientTest, ExchangesTheCodeAndStoresTheTokens) {
    ASSERT_TRUE(client->getAuthorizationCode());
    ASSERT_TRUE(client->handleRedirect(Url("brindlex://authorize?code=a%2Bb%2Fc%3D%26%25+%C3%A9%23glued")));
    const auto& request = host().web.sent.back();
    EXPECT_EQ(request.method, "POST");
    EXPECT_EQ(request.url, "https://service.example/base/oauth/token");
    EXPECT_EQ(request.headers.at("Content-Type"), "application/x-www-form-urlencoded");
    EXPECT_FALSE(request.headers.contains("Authorization"));
    EXPECT_EQ(request.body, "client_id=key&client_secret=se%26cret&redirect_uri=brindlex%3A%2F%2Fauthorize%"
                            "3Fnext%3D%2Fa%26flag%26x%3D%2520%7E"
                            "&grant_type=authorization_code&code=a%2Bb%2Fc%3D%26%25+%C3%A9");
    host().web.answer(200, kReply);
    EXPECT_THAT(told(), ElementsAre("1", "2", "3", "authorizationCompleted"));
    EXPECT_EQ(host().credentials.stored->password, "A&R");
    EXPECT_EQ(host().credentials.removals, 0) << "an older credential is replaced, not removed first";
}

TEST_F(OAuth2ClientTest, IgnoresWhatComesInTheWrongState) {
    const Url callback("brindlex://authorize?code=abc");
    EXPECT_FALSE(client->handleRedirect(callback)) << "nobody asked";
    EXPECT_TRUE(client->getAuthorizationCode());
    EXPECT_FALSE(client->getAuthorizationCode()) << "only retry starts again";
    EXPECT_TRUE(client->handleRedirect(callback));
    EXPECT_FALSE(client->handleRedirect(callback)) << "a second click in the browser";
    EXPECT_EQ(host().web.sent.size(), 1U);
    host().web.answer(200, kReply);
    EXPECT_FALSE(client->handleRedirect(callback));
    EXPECT_FALSE(client->getAuthorizationCode());
    EXPECT_FALSE(client->restoreAuthorization());
    EXPECT_EQ(host().web.sent.size(), 1U);
}

TEST_F(OAuth2ClientTest, DeniedInTheBrowserKeepsWaiting) {
    client->getAuthorizationCode();
    EXPECT_FALSE(
        client->handleRedirect(Url("brindlex://authorize?error=access_denied&error_description=Not+now")));
    EXPECT_FALSE(client->handleRedirect(Url("brindlex://authorize?code=%23abc")))
        << "nothing before the fragment";
    EXPECT_EQ(host().system.warnings, "Authorization error: Not now\nAuthorization error: \n");
    EXPECT_EQ(client->state(), ClientState::kAwaitingCode);
    EXPECT_TRUE(client->handleRedirect(Url("brindlex://authorize?code=abc")));
}

TEST_F(OAuth2ClientTest, FailedExchangeEndsInAFullReset) {
    struct Case {
        std::int32_t status;
        const char* body;
    };
    for (const auto& [status, body] :
         {Case{400, R"({"error":"invalid_grant"})"}, Case{200, ""}, Case{200, "text"}, Case{302, kReply},
          Case{0, ""}, Case{500, kReply}, Case{199, kReply}, Case{300, kReply},
          Case{200, R"({"access_token":"A\nX: y"})"}}) {
        host().credentials.stored = {"Name", "OAuth2Tokens", "old&old", ""};
        listener->heard.clear();
        reachTokenRequest();
        host().web.answer(status, body);
        EXPECT_THAT(told(), ElementsAre("1", "2", "4", "0", "authorizationCanceled")) << status;
        EXPECT_FALSE(host().credentials.stored) << status;
        EXPECT_EQ(client->state(), ClientState::kIdle) << status;
    }
}

TEST_F(OAuth2ClientTest, RequestThatTheHostAbortsOrRefusesFailsTheExchange) {
    reachTokenRequest();
    client->abort();
    EXPECT_THAT(told(), ElementsAre("1", "2", "4", "0", "authorizationCanceled"));
    listener->heard.clear();
    client->getAuthorizationCode();
    host().web.refusesRequests = true;
    EXPECT_FALSE(client->handleRedirect(Url("brindlex://authorize?code=abc")));
    EXPECT_THAT(told(), ElementsAre("1", "2", "4", "0", "authorizationCanceled")) << "nobody waits for ever";
    client->getAuthorizationCode();
    client->handleRedirect(Url("brindlex://authorize?code=abc"));
    client->retryAuthorization(); // before the loss of the last one is told
    host().signals.pump();
    EXPECT_EQ(client->state(), ClientState::kAwaitingCode);
}

TEST_F(OAuth2ClientTest, ReplyWithoutAccessTokenSignsInAndStoresNothing) {
    reachTokenRequest();
    host().web.answer(200, R"({"refresh_token":"R"})");
    EXPECT_EQ(client->state(), ClientState::kAuthorized);
    EXPECT_FALSE(host().credentials.stored);
}

TEST_F(OAuth2ClientTest, ResetTellsUnlessSilent) {
    client->resetAuthorization(Silence::kTold);
    EXPECT_THAT(told(), ElementsAre("0", "authorizationCanceled"));
    EXPECT_EQ(host().credentials.removals, 1);
    listener->heard.clear();
    client->resetAuthorization(Silence::kSilent);
    EXPECT_THAT(told(), ElementsAre("0"));
    EXPECT_EQ(host().credentials.removals, 2);
}

TEST_F(OAuth2ClientTest, RetryDuringTheExchangeStartsAfreshAndStays) {
    reachTokenRequest();
    client->retryAuthorization();
    ASSERT_TRUE(client->handleRedirect(Url("brindlex://authorize?code=second")));
    host().signals.pump(); // the abort of the first exchange is told only now
    EXPECT_EQ(client->state(), ClientState::kRequestingToken);
    host().web.answer(200, kReply);
    EXPECT_THAT(told(), ElementsAre("1", "2", "0", "1", "2", "3", "authorizationCompleted"));
    EXPECT_THAT(host().web.sent.back().body, testing::HasSubstr("code=second"));
}

TEST_F(OAuth2ClientTest, RetryBeforeAFailureIsHandledIsNotEndedByIt) {
    const auto retrying = xbr::make<Acting>(*client, ClientState::kFailed, [this] {
        host().signals.enqueue([this] { client->retryAuthorization(); });
    });
    host().signals.addObserver(client.get(), retrying.get());
    reachTokenRequest();
    host().web.answer(400, "");
    EXPECT_THAT(told(), ElementsAre("1", "2", "4", "0", "1"));
}

TEST_F(OAuth2ClientTest, DoesNothingWhileItsRequestIsBusy) {
    const auto send = [this] {
        return client->send([](const auto&, auto&) {}, "GET", Url("https://service.example"), nullptr, "");
    };
    host().credentials.stored = {"Name", "OAuth2Tokens", "A&R", ""};
    ASSERT_TRUE(send());
    EXPECT_FALSE(client->getAuthorizationCode());
    EXPECT_FALSE(client->restoreAuthorization());
    host().web.answer(200, "");
    ASSERT_TRUE(client->getAuthorizationCode());
    ASSERT_TRUE(send());
    EXPECT_FALSE(client->handleRedirect(Url("brindlex://authorize?code=abc")));
    EXPECT_EQ(client->state(), ClientState::kAwaitingCode);
}

TEST_F(OAuth2ClientTest, WhatIsResetByAnObserverGoesNoFurther) {
    listener->resetAt = ClientState::kAwaitingCode;
    EXPECT_FALSE(client->getAuthorizationCode());
    EXPECT_TRUE(host().shell.opened.empty());
    client->getAuthorizationCode();
    listener->resetAt = ClientState::kRequestingToken;
    EXPECT_FALSE(client->handleRedirect(Url("brindlex://authorize?code=abc")));
    EXPECT_TRUE(host().web.sent.empty());
    reachTokenRequest();
    listener->resetAt = ClientState::kAuthorized;
    host().web.answer(200, kReply);
    EXPECT_FALSE(host().credentials.stored);
    host().credentials.stored = {"Name", "OAuth2Tokens", "stored&R", ""};
    listener->resetAt = ClientState::kAuthorized;
    EXPECT_FALSE(client->restoreAuthorization());
    EXPECT_EQ(client->state(), ClientState::kIdle);
}

TEST_F(OAuth2ClientTest, RestoresFromTheStoreWithoutAskingAnyone) {
    for (const char* unusable : {"", "&", "sto\nred&R"}) {
        host().credentials.stored = {"Name", "OAuth2Tokens", unusable, ""};
        EXPECT_FALSE(client->restoreAuthorization()) << unusable;
    }
    EXPECT_THAT(told(), ElementsAre());
    host().credentials.stored = {"Name", "OAuth2Tokens", "stored&R", ""};
    client->getAuthorizationCode();
    EXPECT_TRUE(client->restoreAuthorization()) << "also while the browser is open";
    EXPECT_THAT(told(), ElementsAre("1", "3", "authorizationCompleted"));
    EXPECT_TRUE(host().web.sent.empty());
    ASSERT_TRUE(client->sendAuthorizedQuery([](const auto&, auto&) {}, "api/me"));
    EXPECT_EQ(host().web.sent.back().headers.at("Authorization"), "Bearer stored");
    EXPECT_EQ(host().web.sent.back().method, "GET");
    EXPECT_EQ(host().web.sent.back().url, "https://service.example/base/api/me");
}

TEST_F(OAuth2ClientTest, SendsServiceRequestsOnlyWhenAuthorizedAndFree) {
    brindlex::ServiceRequest request;
    request.path = "api/upload";
    request.contentType = "text/x";
    const auto handler = [](const auto&, auto&) {};
    EXPECT_FALSE(client->sendAuthorizedRequest(handler, request));
    signIn();
    ASSERT_TRUE(client->sendAuthorizedRequest(handler, request));
    EXPECT_FALSE(client->sendAuthorizedRequest(handler, request)) << "busy";
    const auto& sent = host().web.sent.back();
    EXPECT_EQ(sent.method, "POST");
    EXPECT_EQ(sent.url, "https://service.example/base/api/upload");
    EXPECT_EQ(sent.headers.at("Authorization"), "Bearer A");
    EXPECT_EQ(sent.headers.at("Content-Type"), "text/x");
    client->resetAuthorization(Silence::kTold);
    host().signals.pump();
    EXPECT_FALSE(client->sendAuthorizedRequest(handler, request));
    client->getAuthorizationCode();
    client->handleRedirect(Url("brindlex://authorize?code=abc"));
    EXPECT_FALSE(host().web.sent.back().headers.contains("Authorization")) << "credentials are gone";
}

TEST_F(OAuth2ClientTest, ParametersActAndPropertiesTell) {
    const auto set = [&](const char* name) {
        return client->findParameter(xbr::toText(name))->setValue(xbr::integerValue(1));
    };
    const auto property = [&](const char* name) {
        xbr::Value value{};
        client->getProperty(xbr::toText(name), &value);
        return xbr::integerOf(value, -1);
    };
    const auto shown = xbr::make<Listener>(*client);
    host().signals.addObserver(client->parameter(103), shown.get());
    set("isAuthorized");
    shown->heard.clear();
    EXPECT_EQ(xbr::integerOf(client->findParameter(xbr::toText("isAuthorized"))->value()), 0) << "only shows";
    set("getAuthorizationCode");
    EXPECT_EQ(property("clientState"), 1);
    set("retryAuthorization");
    set("retryAuthorization");
    EXPECT_EQ(host().shell.opened.size(), 3U) << "the same value acts again";
    client->handleRedirect(Url("brindlex://authorize?code=abc"));
    EXPECT_EQ(property("isBusy"), 1);
    host().web.answer(200, kReply);
    EXPECT_EQ(property("isAuthorized"), 1);
    EXPECT_EQ(xbr::integerOf(client->findParameter(xbr::toText("isAuthorized"))->value()), 1);
    set("resetAuthorization");
    EXPECT_THAT(shown->heard, ElementsAre()) << "\"propertyChanged\" tells it";
    EXPECT_EQ(property("clientState"), 0);
    EXPECT_EQ(property("unknown"), -1);
}

TEST_F(OAuth2ClientTest, StaysWaitingWhenNoBrowserOpens) {
    host().shell.fails = true;
    EXPECT_FALSE(client->getAuthorizationCode());
    EXPECT_EQ(client->state(), ClientState::kAwaitingCode);
}

} // namespace
