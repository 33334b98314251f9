#include "client/configuration.h"
#include "tests/client/clientfixture.h"

namespace brindlex {

namespace {

using testing::Contains;
using testing::Not;

class ManagerTest : public ClientFixture {};

TEST_F(ManagerTest, ConnectsWithStoredTokensWithoutADialog) {
    signIn();
    EXPECT_TRUE(host().shell.opened.empty());
    EXPECT_THAT(host().objects.log, Contains("load brindlex Brindlex Client 0 1"));
    EXPECT_THAT(host().objects.log, Not(Contains("run BrindlexConnectDialog 66")));
    EXPECT_EQ(host().web.sent.back().method, "GET");
    EXPECT_EQ(host().web.sent.back().url, "https://service/api/frontstage/account");
    EXPECT_EQ(text("userURL"), "https://web/me");
    host().objects.log.clear();
    perform("connect");
    EXPECT_TRUE(host().objects.log.empty()) << "connected already";
}

TEST_F(ManagerTest, LoadsTheConfigurationOncePerClientAndOpensNoPageWithoutADialog) {
    const auto& configuration = manager->client().configuration();
    host().failing = {"load"};
    perform("connect");
    EXPECT_EQ(configuration.consumerKey, "") << "nothing is applied";
    host().failing.clear();
    perform("connect");
    EXPECT_EQ(configuration.consumerKey, "key");
    signOut();
    host().shell.opened.clear();
    host().failing = {"createInstance"};
    host().objects.configuration["ConsumerKey"] = "other";
    perform("connect");
    EXPECT_EQ(configuration.consumerKey, "key");
    EXPECT_TRUE(host().shell.opened.empty());
    EXPECT_EQ(manager->client().state(), ClientState::kIdle);
}

TEST_F(ManagerTest, ConfigurationTakesWhatIsThere) {
    const auto attributes = xbr::make<xbr::Attributes>();
    for (const char* key :
         {"ServerURL", "UserURL", "ConsumerKey", "ConsumerSecret", "CallbackURL", "JoinToken"}) {
        attributes->set(key, std::string(key) + "\xC3\xA9");
    }
    applyConfiguration(manager->client(), *attributes);
    const ServiceConfiguration& configuration = manager->client().configuration();
    EXPECT_EQ(configuration.serverUrl.toString(), "ServerURL\xC3\xA9");
    EXPECT_EQ(configuration.userUrl.toString(), "UserURL\xC3\xA9");
    EXPECT_EQ(configuration.consumerKey, "ConsumerKey?");
    EXPECT_EQ(configuration.consumerSecret, "ConsumerSecret?");
    EXPECT_EQ(configuration.callbackUrl.toString(), "CallbackURL\xC3\xA9");
    EXPECT_EQ(configuration.joinToken, "JoinToken\xC3\xA9");
    const auto other = xbr::make<xbr::Attributes>();
    other->set("ConsumerSecret", xbr::integerValue(5));
    applyConfiguration(manager->client(), *other);
    EXPECT_EQ(configuration.consumerKey + configuration.consumerSecret, "");
}

TEST_F(ManagerTest, AccountReplyDecidesWhoIsShown) {
    for (const auto& [status, body, name] :
         Rows<int, const char*, const char*>{{200, R"({"user":{"name":"Nils"}})", "Nils"},
                                             {200, "no json", ""},
                                             {204, "", ""},
                                             {500, R"({"user":{"name":"Nils"}})", "old"},
                                             {401, "", "old"},
                                             {0, "", "old"}}) {
        fakehost::set(*manager, "userName", xbr::textValue("old"));
        connectWithStoredTokens();
        host().signals.posts.clear();
        host().web.answer(status, body);
        EXPECT_EQ(text("userName"), name) << status;
        EXPECT_EQ(host().signals.posts, std::vector<std::string>(status == 401, "refreshAccessToken 0"));
        signOut();
    }
}

TEST_F(ManagerTest, AViewMayHoldTheClientLonger) {
    connectWithStoredTokens();
    EXPECT_TRUE(host().web.isInFlight());
    const auto client = xbr::Ref<xbr::IController>::share(&manager->client());
    manager.reset();
    EXPECT_FALSE(host().web.isInFlight());
}

TEST_F(ManagerTest, FirstInstanceIsTheCurrentOne) {
    auto second = xbr::make<Manager>();
    EXPECT_EQ(Manager::current(), manager.get());
    second.reset();
    EXPECT_EQ(Manager::current(), manager.get());
    second = xbr::make<Manager>();
    manager.reset();
    EXPECT_EQ(Manager::current(), nullptr);
}

TEST_F(ManagerTest, DashboardVisibleIsTruncated) {
    for (const auto& [value, visible] : Rows<xbr::Value, bool>{{xbr::integerValue(2), true},
                                                               {xbr::floatValue(0.5), false},
                                                               {xbr::floatValue(1.7), true},
                                                               {xbr::floatValue(-0.9), false},
                                                               {xbr::integerValue(0), false},
                                                               {xbr::textValue("1"), false}}) {
        EXPECT_EQ(manager->setProperty(xbr::toText("dashboardVisible"), value), xbr::kFalse);
        EXPECT_EQ(manager->isDashboardVisible(), visible);
    }
}

} // namespace

} // namespace brindlex
