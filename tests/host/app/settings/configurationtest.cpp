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
    ConfigurationResult read(std::string_view bytes) {
        write(bytes);
        return readConfiguration(m_path, "brindlex", m_settings);
    }
    void write(std::string_view bytes) const { writeFile(m_path, bytes); }

    /// What the module is told; the user finds the rest in the report.
    Result load() {
        m_told = make<Attributes>();
        return m_store->load(m_told.get(), toText("brindlex"), toText("Client"), 0, 1);
    }

    TestFolder m_folder;
    std::string m_path = m_folder.path("services.ini");
    TestVariable m_variable{"XBRHOST_CONFIG", m_path};
    Settings m_settings;
    Ref<Attributes> m_told;
    std::shared_ptr<ConfigurationReport> m_report = std::make_shared<ConfigurationReport>();
    Ref<ConfigurationStore> m_store = make<ConfigurationStore>(m_report);
};

} // namespace

TEST_F(Configuration, valuesAreLiteral) {
    for (const std::string value :
         {"a,b, c", R"(back\slash \n \x41)", "100%20 %s", "semi;colon ; x", "\"quoted\"", "hash # sharp",
          "a=b==", "[section]", "@Invalid()", "Größe 音楽", "$HOME ${HOME} ~", "https://x/y?a=1&b=2#c"}) {
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
    using enum ConfigurationResult;
    EXPECT_EQ(load(), kFalse);
    EXPECT_TRUE(m_report->wasAsked);
    EXPECT_EQ(m_report->path, m_path);
    EXPECT_EQ(m_report->result, kAbsent);
    EXPECT_EQ(readConfiguration(m_folder.path(), "brindlex", m_settings), kUnreadable);
    EXPECT_EQ(read(""), kAbsent);
    EXPECT_EQ(read("[other]\nA=1"), kAbsent);
    EXPECT_EQ(read("[brindlex]"), kRead);
    EXPECT_EQ(read("[brindlex]\nA=" + std::string(2U << 20U, 'x')), kUnreadable);
    write("[brindlex]\nServerURL=\xC3\x28\n");
    EXPECT_EQ(load(), kUnexpected);
    EXPECT_EQ(m_report->result, kUnreadable);
    EXPECT_EQ(m_told->getString("ServerURL"), "");
}

TEST_F(Configuration, newsComeFromAnAddressOfTheWebOnly) {
    for (const char* wrong : {"ServerURL=https://x.example/", "FeedURL=file:///etc/passwd",
                              "FeedURL=x.example", "FeedURL=\xFF"}) {
        write(std::string("[brindlex]\n") + wrong);
        EXPECT_TRUE(configuredProperties("brindlex", "FeedElement").empty()) << wrong;
    }
    write("[brindlex]\nFeedURL=https://x.example/a?b#c\n");
    EXPECT_TRUE(configuredProperties("brindlex", "ImageElement").empty());
    const auto news = configuredProperties("brindlex", "FeedElement");
    ASSERT_EQ(news.size(), 1U);
    EXPECT_EQ(news[0].name + " " + news[0].value, "url https://x.example/a?b#c");
}

TEST_F(Configuration, wrongAddressesAreToldAndNothingGoesThereUnencrypted) {
    for (const std::string row :
         {"https://service.example/api → ", "http://127.0.0.1:8080 → ", "http://127.8.0.1 → ",
          "http://[::1]:80/a → ", "http://LocalHost → ", "http://service.example → unencrypted ",
          "HTTP://localhost.example → unencrypted ",
          "http://localhost@service.example → unencrypted wrong ServerURL ", " → missing ServerURL ",
          "\nCallbackURL= → missing ServerURL missing CallbackURL ", "service.example → wrong ServerURL ",
          "ftp://service.example → wrong ServerURL ", "https:// → wrong ServerURL ",
          "https://a b/\nCallbackURL=authorize → wrong ServerURL wrong CallbackURL "}) {
        const std::string server = row.substr(0, row.find(" → "));
        write("[brindlex]\nConsumerKey=k\nConsumerSecret=s\nCallbackURL=brindlex:x\nServerURL=" + server);
        const Result result = load();
        EXPECT_EQ(result, m_report->isUnencrypted ? kUnexpected : kOk) << row;
        EXPECT_EQ(m_told->getString("ServerURL"), m_report->isUnencrypted ? "" : m_report->serverUrl);
        std::string told = server + " → " + (m_report->isUnencrypted ? "unencrypted " : "");
        for (const std::string& key : m_report->missingKeys) {
            told += "missing " + key + " ";
        }
        for (const std::string& key : m_report->wrongKeys) {
            told += "wrong " + key + " ";
        }
        EXPECT_EQ(told, row);
        EXPECT_EQ(m_report->isComplete(), row.ends_with("→ ")) << row;
    }
}

TEST_F(Configuration, pathFollowsTheEnvironment) {
    const TestVariable home("XDG_CONFIG_HOME", m_folder.path("config"));
    EXPECT_EQ(configurationPath(), m_path);
    const TestVariable none("XBRHOST_CONFIG", "");
    EXPECT_EQ(configurationPath(), m_folder.path("config/xbrhost/services.ini"));
}

} // namespace xbr::host
