#include "auth/oauth2client.h"

#include "framework/support/objects/text.h"
#include "tests/fakehost/fakehost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace {

using brindlex::ClientState;
using brindlex::OAuth2Client;
using brindlex::Silence;
using fakehost::host;
using fakehost::property;
using fakehost::Rows;
using xbr::Url;

constexpr const char* kReply = R"({"access_token":"A","refresh_token":"R","expires_in":60})";
const Url kCallback("brindlex://authorize?code=abc");

/// Writes down what the client tells: the states it is in, and the messages.
class Listener final : public xbr::Object<xbr::IObserver> {
public:
    explicit Listener(OAuth2Client& client) : m_client(client) {}
    void notify(xbr::ISubject*, xbr::IMessage* message) noexcept override {
        const auto state = std::to_string(static_cast<int>(m_client.state()));
        const bool isMessage = !xbr::isNamed(*message, "propertyChanged");
        if (isMessage || !heard.ends_with(state + " ")) { // busy changes repeat the state
            heard += (isMessage ? xbr::toString(message->name()) : state) + " ";
        }
        if (act && m_client.state() == actAt) {
            std::exchange(act, nullptr)();
        }
    }

    std::string heard;
    ClientState actAt = ClientState::kIdle;
    std::function<void()> act; ///< what is done there, once

private:
    OAuth2Client& m_client;
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
        ASSERT_TRUE(client->handleRedirect(kCallback));
    }

    /// The states that were passed through and the messages, since the last call.
    std::string told() {
        host().signals.pump();
        return std::exchange(listener->heard, {});
    }

    void store(const char* password) { host().credentials.stored = {"Name", "OAuth2Tokens", password, ""}; }

    /// The user gives up as soon as the client comes to a state.
    void resetAt(ClientState state) {
        listener->actAt = state;
        listener->act = [this] { client->resetAuthorization(Silence::kSilent); };
    }

    xbr::Ref<OAuth2Client> client;
    xbr::Ref<Listener> listener;
};

TEST_F(OAuth2ClientTest, OpensTheExactAuthorizationUrl) {
    const std::string expected =
        "https://service.example/base/oauth/authorize?client_id=key&redirect_uri="
        "brindlex%3A%2F%2Fauthorize%3Fnext%3D%2Fa%26flag%26x%3D%2520%7E&response_type=code";
    for (const auto& [allowed, url] : Rows<std::optional<bool>, std::string>{
             {std::nullopt, expected}, {false, expected}, {true, expected + "&jt=join"}}) {
        host().objects.joinTokenAllowed = allowed;
        client->retryAuthorization();
        EXPECT_EQ(host().shell.opened.back(), url);
    }
    client->resetAuthorization(Silence::kTold);
    host().failing = {"openUrl"};
    EXPECT_FALSE(client->getAuthorizationCode());
    EXPECT_EQ(client->state(), ClientState::kAwaitingCode) << "the user may open it by hand";
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
    EXPECT_EQ(told(), "1 2 3 authorizationCompleted ");
    EXPECT_EQ(host().credentials.stored->password, "A&R");
    EXPECT_EQ(host().credentials.removals, 0) << "an older credential is replaced, not removed first";
    client->resetAuthorization(Silence::kTold);
    reachTokenRequest();
    host().web.answer(200, R"({"refresh_token":"R"})");
    EXPECT_EQ(client->state(), ClientState::kAuthorized);
    EXPECT_FALSE(host().credentials.stored) << "without an access token there is nothing to keep";
}

TEST_F(OAuth2ClientTest, IgnoresWhatComesInTheWrongState) {
    EXPECT_FALSE(client->handleRedirect(kCallback)) << "nobody asked";
    EXPECT_TRUE(client->getAuthorizationCode());
    EXPECT_FALSE(client->getAuthorizationCode()) << "only retry starts again";
    EXPECT_TRUE(client->handleRedirect(kCallback));
    EXPECT_FALSE(client->handleRedirect(kCallback)) << "a second click in the browser";
    host().web.answer(200, kReply);
    EXPECT_FALSE(client->handleRedirect(kCallback));
    EXPECT_FALSE(client->getAuthorizationCode());
    EXPECT_FALSE(client->restoreAuthorization());
    EXPECT_EQ(host().web.sent.size(), 1U);
}

TEST_F(OAuth2ClientTest, DeniedInTheBrowserKeepsWaiting) {
    client->getAuthorizationCode();
    for (const char* query : {"error=access_denied&error_description=Not+now", "code=%23abc"}) {
        EXPECT_FALSE(client->handleRedirect(Url(std::string("brindlex://authorize?") + query))) << query;
    }
    EXPECT_EQ(host().system.warnings, "Authorization error: Not now\nAuthorization error: \n");
    EXPECT_EQ(client->state(), ClientState::kAwaitingCode);
    EXPECT_TRUE(client->handleRedirect(kCallback));
}

TEST_F(OAuth2ClientTest, FailedExchangeEndsInAFullReset) {
    for (const auto& [status, body] : Rows<int, const char*>{{400, R"({"error":"invalid_grant"})"},
                                                             {200, ""},
                                                             {200, "text"},
                                                             {302, kReply},
                                                             {0, ""},
                                                             {500, kReply},
                                                             {199, kReply},
                                                             {300, kReply},
                                                             {200, R"({"access_token":"A\nX: y"})"},
                                                             {-1, ""}}) { // aborted by the host
        store("old&old");
        reachTokenRequest();
        status < 0 ? client->abort() : host().web.answer(status, body);
        EXPECT_EQ(told(), "1 2 4 0 authorizationCanceled ") << status;
        EXPECT_FALSE(host().credentials.stored) << status;
        EXPECT_EQ(client->state(), ClientState::kIdle) << status;
    }
    client->getAuthorizationCode();
    host().failing = {"send"};
    EXPECT_FALSE(client->handleRedirect(kCallback));
    EXPECT_EQ(told(), "1 2 4 0 authorizationCanceled ") << "nobody waits for ever";
    client->getAuthorizationCode();
    client->handleRedirect(kCallback);
    client->retryAuthorization(); // before the loss of the last one is told
    host().signals.pump();
    EXPECT_EQ(client->state(), ClientState::kAwaitingCode);
}

TEST_F(OAuth2ClientTest, ResetForgetsAndTellsUnlessSilent) {
    for (const auto& [silence, expected] :
         Rows<Silence, const char*>{{Silence::kTold, "0 authorizationCanceled "}, {Silence::kSilent, "0 "}}) {
        store("A&R");
        client->resetAuthorization(silence);
        EXPECT_EQ(told(), expected);
        EXPECT_FALSE(host().credentials.stored);
    }
}

TEST_F(OAuth2ClientTest, RetryDuringTheExchangeStartsAfreshAndStays) {
    reachTokenRequest();
    client->retryAuthorization();
    ASSERT_TRUE(client->handleRedirect(Url("brindlex://authorize?code=second")));
    host().signals.pump(); // the abort of the first exchange is told only now
    EXPECT_EQ(client->state(), ClientState::kRequestingToken);
    host().web.answer(200, kReply);
    EXPECT_EQ(told(), "1 2 0 1 2 3 authorizationCompleted ");
    EXPECT_THAT(host().web.sent.back().body, testing::HasSubstr("code=second"));
    client->resetAuthorization(Silence::kSilent);
    told();
    listener->actAt = ClientState::kFailed;
    listener->act = [this] { host().signals.enqueue([this] { client->retryAuthorization(); }); };
    reachTokenRequest();
    host().web.answer(400);
    EXPECT_EQ(told(), "1 2 4 0 1 ") << "a retry before a failure is handled is not ended by it";
}

TEST_F(OAuth2ClientTest, DoesNothingWhileItsRequestIsBusy) {
    const auto send = [this] {
        return client->send([](const auto&, auto&) {}, "GET", Url("https://service.example"), nullptr, "");
    };
    store("A&R");
    ASSERT_TRUE(send());
    EXPECT_FALSE(client->getAuthorizationCode());
    EXPECT_FALSE(client->restoreAuthorization());
    host().web.answer(200, "");
    ASSERT_TRUE(client->getAuthorizationCode());
    ASSERT_TRUE(send());
    EXPECT_FALSE(client->handleRedirect(kCallback));
    EXPECT_EQ(client->state(), ClientState::kAwaitingCode);
}

TEST_F(OAuth2ClientTest, WhatIsResetByAnObserverGoesNoFurther) {
    resetAt(ClientState::kAwaitingCode);
    EXPECT_FALSE(client->getAuthorizationCode());
    EXPECT_TRUE(host().shell.opened.empty());
    client->getAuthorizationCode();
    resetAt(ClientState::kRequestingToken);
    EXPECT_FALSE(client->handleRedirect(kCallback));
    EXPECT_TRUE(host().web.sent.empty());
    reachTokenRequest();
    resetAt(ClientState::kAuthorized);
    host().web.answer(200, kReply);
    EXPECT_FALSE(host().credentials.stored);
    store("stored&R");
    resetAt(ClientState::kAuthorized);
    EXPECT_FALSE(client->restoreAuthorization());
    EXPECT_EQ(client->state(), ClientState::kIdle);
}

TEST_F(OAuth2ClientTest, RestoresFromTheStoreWithoutAskingAnyone) {
    for (const char* unusable : {"", "&", "sto\nred&R"}) {
        store(unusable);
        EXPECT_FALSE(client->restoreAuthorization()) << unusable;
    }
    EXPECT_EQ(told(), "");
    store("stored&R");
    client->getAuthorizationCode();
    EXPECT_TRUE(client->restoreAuthorization()) << "also while the browser is open";
    EXPECT_EQ(told(), "1 3 authorizationCompleted ");
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
    const auto send = [&] { return client->sendAuthorizedRequest([](const auto&, auto&) {}, request); };
    EXPECT_FALSE(send());
    reachTokenRequest();
    host().web.answer(200, kReply);
    ASSERT_TRUE(send());
    EXPECT_FALSE(send()) << "busy";
    const auto& sent = host().web.sent.back();
    EXPECT_EQ(sent.method + " " + sent.url, "POST https://service.example/base/api/upload");
    EXPECT_EQ(sent.headers.at("Authorization"), "Bearer A");
    EXPECT_EQ(sent.headers.at("Content-Type"), "text/x");
    client->resetAuthorization(Silence::kTold);
    host().signals.pump();
    EXPECT_FALSE(send());
    reachTokenRequest();
    EXPECT_FALSE(host().web.sent.back().headers.contains("Authorization")) << "credentials are gone";
}

TEST_F(OAuth2ClientTest, ParametersActAndPropertiesTell) {
    const auto number = [&](const char* name) { return xbr::integerOf(property(*client, name), -1); };
    const auto shown = xbr::make<Listener>(*client);
    fakehost::press(*client, "isAuthorized");
    host().signals.addObserver(client->parameter(103), shown.get());
    EXPECT_EQ(xbr::integerOf(fakehost::shown(*client, "isAuthorized")), 0) << "only shows";
    fakehost::press(*client, "getAuthorizationCode");
    EXPECT_EQ(number("clientState"), 1);
    fakehost::press(*client, "retryAuthorization");
    fakehost::press(*client, "retryAuthorization");
    EXPECT_EQ(host().shell.opened.size(), 3U) << "the same value acts again";
    client->handleRedirect(kCallback);
    EXPECT_EQ(number("isBusy"), 1);
    host().web.answer(200, kReply);
    EXPECT_EQ(number("isAuthorized"), 1);
    EXPECT_EQ(xbr::integerOf(fakehost::shown(*client, "isAuthorized")), 1);
    fakehost::press(*client, "resetAuthorization");
    EXPECT_EQ(shown->heard, "") << "\"propertyChanged\" tells it";
    EXPECT_EQ(number("clientState"), 0);
    EXPECT_EQ(number("unknown"), -1);
}

} // namespace
