#include "framework/support/data/attributes.h"
#include "framework/support/objects/text.h"
#include "host/app/settings/configurationstore.h"
#include "tests/fixtures/testfolder.h"

#include <gmock/gmock.h>

namespace xbr::host {

namespace {

using testing::ElementsAre;
using testing::Pair;

class Configuration : public testing::Test {
protected:
    ConfigurationResult read(std::string_view bytes, std::string_view section = "brindlex") {
        return readConfiguration(m_folder.write("services.ini", bytes), section, m_settings);
    }

    TestFolder m_folder;
    Settings m_settings;
};

} // namespace

TEST_F(Configuration, valuesAreLiteral) {
    const std::string values[] = {"a,b, c",          R"(back\slash \n \x41)",
                                  "100%20 %s",       "semi;colon ; x",
                                  "\"quoted\"",      "hash # sharp",
                                  "a=b==",           "[section]",
                                  "@Invalid()",      "Größe 音楽",
                                  "$HOME ${HOME} ~", "https://x/y?a=1&b=2#c"};
    for (const std::string& value : values) {
        ASSERT_EQ(read("[brindlex]\nConsumerSecret =\t" + value + " \r\n"), ConfigurationResult::kRead);
        EXPECT_THAT(m_settings, ElementsAre(Pair("ConsumerSecret", value)));
    }
}

TEST_F(Configuration, onlyItsSectionIsRead) {
    ASSERT_EQ(
        read("\xEF\xBB\xBF; comment\nA=outside\n[other]\nA=other\n[ brindlex ]\n#A=no\nA=1\n no value\nB=\n"
             "[Brindlex]\nA=case\n[brindlex]\nA=2\nC = 3"),
        ConfigurationResult::kRead);
    EXPECT_THAT(m_settings, ElementsAre(Pair("A", "2"), Pair("B", ""), Pair("C", "3")));
}

TEST_F(Configuration, whatIsMissingOrUnreadableIsTold) {
    EXPECT_EQ(readConfiguration(m_folder.path("none.ini"), "brindlex", m_settings),
              ConfigurationResult::kAbsent);
    EXPECT_EQ(readConfiguration(m_folder.path(), "brindlex", m_settings), ConfigurationResult::kUnreadable);
    EXPECT_EQ(read(""), ConfigurationResult::kAbsent);
    EXPECT_EQ(read("[other]\nA=1"), ConfigurationResult::kAbsent);
    EXPECT_EQ(read("[brindlex]"), ConfigurationResult::kRead);
    EXPECT_EQ(read("[brindlex]\nA=\xC3\x28"), ConfigurationResult::kUnreadable);
    EXPECT_EQ(read("[brindlex]\nA=" + std::string(2U << 20U, 'x')), ConfigurationResult::kUnreadable);
}

TEST_F(Configuration, storeTellsModuleAndUser) {
    const auto report = std::make_shared<ConfigurationReport>();
    const auto store = make<ConfigurationStore>(report);
    const TestVariable path("XBRHOST_CONFIG", m_folder.path("services.ini"));
    const auto load = [&](std::string_view id) {
        const auto attributes = make<Attributes>();
        const Result result = store->load(attributes.get(), toText(id), toText("Client"), 0, 1);
        return std::pair(result, attributes->getString("ServerURL"));
    };

    EXPECT_EQ(load("brindlex"), std::pair(kFalse, std::string()));
    EXPECT_TRUE(report->wasAsked);
    EXPECT_EQ(report->path, m_folder.path("services.ini"));

    m_folder.write("services.ini",
                   "[brindlex]\nServerURL=https://x/\nConsumerKey=k\nCallbackURL=b:c\n[broken]\n");
    EXPECT_EQ(load("brindlex"), std::pair(kOk, std::string("https://x/")));
    EXPECT_FALSE(report->isComplete());
    EXPECT_THAT(report->missingKeys, ElementsAre("ConsumerSecret"));

    m_folder.write("services.ini", "[brindlex]\nServerURL=\xFF\n");
    EXPECT_EQ(load("brindlex"), std::pair(kUnexpected, std::string()));
    EXPECT_EQ(report->result, ConfigurationResult::kUnreadable);

    m_folder.write("services.ini", "[brindlex]\nServerURL=http://x/\nConsumerKey=k\n");
    EXPECT_EQ(load("brindlex"), std::pair(kUnexpected, std::string())) << "nothing goes there unencrypted";
}

TEST_F(Configuration, newsComeFromAnAddressOfTheWebOnly) {
    const struct {
        const char* bytes;
        const char* className;
        const char* url; ///< empty for no news
    } cases[] = {
        {"[brindlex]\nFeedURL=https://service.example/a?b#c\n", "FeedElement",
         "https://service.example/a?b#c"},
        {"[brindlex]\nFeedURL=https://service.example/\n", "ImageElement", ""},
        {"[brindlex]\nServerURL=https://service.example/\n", "FeedElement", ""},
        {"[other]\nFeedURL=https://service.example/\n", "FeedElement", ""},
        {"[brindlex]\nFeedURL=file:///etc/passwd\n", "FeedElement", ""},
        {"[brindlex]\nFeedURL=service.example\n", "FeedElement", ""},
        {"[brindlex]\nFeedURL=\xFF\n", "FeedElement", ""},
    };
    const TestVariable path("XBRHOST_CONFIG", m_folder.path("services.ini"));
    for (const auto& one : cases) {
        m_folder.write("services.ini", one.bytes);
        const auto properties = configuredProperties("brindlex", one.className);
        ASSERT_EQ(properties.size(), *one.url == 0 ? 0U : 1U) << one.bytes;
        if (*one.url != 0) {
            EXPECT_EQ(properties[0].name, "url");
            EXPECT_EQ(properties[0].value, one.url);
        }
    }
}

TEST_F(Configuration, wrongAddressesAreTold) {
    const struct {
        const char* server;
        const char* callback;
        std::vector<std::string> missing;
        std::vector<std::string> wrong;
        bool isUnencrypted;
    } cases[] = {
        {"https://service.example/api", "brindlex://authorize", {}, {}, false},
        {"http://127.0.0.1:8080", "brindlex:x", {}, {}, false},
        {"http://127.8.0.1", "brindlex:x", {}, {}, false},
        {"http://[::1]:80/a", "brindlex:x", {}, {}, false},
        {"http://LocalHost", "brindlex:x", {}, {}, false},
        {"http://service.example", "brindlex:x", {}, {}, true},
        {"HTTP://localhost.example", "brindlex:x", {}, {}, true},
        {"http://localhost@service.example", "brindlex:x", {}, {"ServerURL"}, true},
        {"", "brindlex:x", {"ServerURL"}, {}, false},
        {"", "", {"ServerURL", "CallbackURL"}, {}, false},
        {"service.example", "brindlex:x", {}, {"ServerURL"}, false},
        {"ftp://service.example", "brindlex:x", {}, {"ServerURL"}, false},
        {"https://", "brindlex:x", {}, {"ServerURL"}, false},
        {"https://a b/", "authorize", {}, {"ServerURL", "CallbackURL"}, false},
    };
    const auto report = std::make_shared<ConfigurationReport>();
    const auto store = make<ConfigurationStore>(report);
    const TestVariable path("XBRHOST_CONFIG", m_folder.path("services.ini"));
    for (const auto& one : cases) {
        m_folder.write("services.ini", "[brindlex]\nConsumerKey=k\nConsumerSecret=s\nServerURL=" +
                                           std::string(one.server) + "\nCallbackURL=" + one.callback + "\n");
        store->load(make<Attributes>().get(), toText("brindlex"), toText("Client"), 0, 1);
        EXPECT_EQ(report->missingKeys, one.missing) << one.server;
        EXPECT_EQ(report->wrongKeys, one.wrong) << one.server;
        EXPECT_EQ(report->isUnencrypted, one.isUnencrypted) << one.server;
        EXPECT_EQ(report->isComplete(), one.missing.empty() && one.wrong.empty() && !one.isUnencrypted);
    }
}

TEST_F(Configuration, pathFollowsTheEnvironment) {
    const TestVariable home("XDG_CONFIG_HOME", m_folder.path("config"));
    EXPECT_EQ(configurationPath(), m_folder.path("config/xbrhost/services.ini"));
    const TestVariable path("XBRHOST_CONFIG", "/elsewhere/x.ini");
    EXPECT_EQ(configurationPath(), "/elsewhere/x.ini");
}

} // namespace xbr::host
