#include "client/configuration.h"
#include "tests/client/clientfixture.h"

#include <gmock/gmock.h>

namespace brindlex {

namespace {

using fakehost::host;
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
    EXPECT_EQ(text("userName"), "Mara");
    EXPECT_EQ(text("userURL"), "https://web/me");
    host().objects.log.clear();
    perform("connect");
    EXPECT_TRUE(host().objects.log.empty()) << "connected already";
}

TEST_F(ManagerTest, NoDialogMeansNoAuthorization) {
    host().objects.hasDialog = false;
    perform("connect");
    EXPECT_TRUE(host().shell.opened.empty());
    EXPECT_EQ(manager->client().state(), ClientState::kIdle);
}

TEST_F(ManagerTest, LoadsTheConfigurationOncePerClient) {
    host().objects.configurationResult = xbr::kFalse;
    perform("connect");
    EXPECT_EQ(manager->client().configuration().consumerKey, "") << "nothing is applied";
    host().objects.configurationResult = xbr::kOk;
    perform("connect");
    EXPECT_EQ(manager->client().configuration().consumerKey, "key");
    host().objects.configuration["ConsumerKey"] = "other";
    perform("connect");
    EXPECT_EQ(manager->client().configuration().consumerKey, "key");
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
    struct Case {
        std::int32_t status;
        const char* body;
        const char* name;
    };
    for (const auto& [status, body, name] :
         {Case{200, R"({"user":{"name":"Nils"}})", "Nils"}, Case{200, "no json", ""}, Case{204, "", ""},
          Case{500, R"({"user":{"name":"Nils"}})", "old"}, Case{401, "", "old"}, Case{0, "", "old"}}) {
        signIn();
        manager->client().resetAuthorization(Silence::kSilent);
        manager->findParameter(xbr::toText("userName"))->setValue(xbr::textValue("old"));
        host().credentials.stored = {"Kestrova_Brindlex_Client", "OAuth2Tokens", "A&R", ""};
        perform("connect");
        host().signals.pump();
        host().web.answer(status, body);
        EXPECT_EQ(text("userName"), name) << status;
        EXPECT_EQ(host().signals.posts.size(), status == 401 ? 1U : 0U) << status;
        host().signals.posts.clear();
        manager->client().resetAuthorization(Silence::kTold);
        host().signals.pump();
    }
}

TEST_F(ManagerTest, FirstInstanceIsTheCurrentOne) {
    EXPECT_EQ(Manager::current(), manager.get());
    auto second = xbr::make<Manager>();
    EXPECT_EQ(Manager::current(), manager.get());
    second.reset();
    EXPECT_EQ(Manager::current(), manager.get());
    second = xbr::make<Manager>();
    manager.reset();
    EXPECT_EQ(Manager::current(), nullptr);
}

TEST_F(ManagerTest, DashboardVisibleIsTruncated) {
    struct Case {
        xbr::Value value;
        bool visible;
    };
    for (const auto& [value, visible] :
         {Case{xbr::integerValue(2), true}, Case{xbr::floatValue(0.5), false},
          Case{xbr::floatValue(1.7), true}, Case{xbr::floatValue(-0.9), false},
          Case{xbr::integerValue(0), false}, Case{xbr::textValue("1"), false}}) {
        EXPECT_EQ(manager->setProperty(xbr::toText("dashboardVisible"), value), xbr::kFalse);
        EXPECT_EQ(manager->isDashboardVisible(), visible);
    }
}

} // namespace

} // namespace brindlex
