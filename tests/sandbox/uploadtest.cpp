#include "tests/sandbox/runningservice.h"

#include <gtest/gtest.h>
#include <httplib.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <random>
#include <sstream>

namespace {

namespace fs = std::filesystem;

class UploadTest : public testing::Test {
protected:
    std::string read(const fs::path& file) const {
        std::ostringstream text;
        text << std::ifstream(m_running.inbox() / file, std::ios::binary).rdbuf();
        return text.str();
    }

    // Folders of accepted releases, and whatever is left half done.
    std::ptrdiff_t folders() const {
        return std::count_if(fs::directory_iterator(m_running.inbox()), {},
                             [](const auto& e) { return e.path().filename().string().starts_with("0"); });
    }
    bool isStagingEmpty() const { return fs::is_empty(m_running.inbox() / ".staging"); }

    RunningService m_running;
    std::string m_token = m_running.signIn();
};

TEST_F(UploadTest, KeepsWhatIsAccepted) {
    const std::string audio(300'000, 'x');
    for (int id = 1; id <= 2; ++id) {
        const auto reply = m_running.upload(
            m_token, zipOf({{"metadata.json", metadataFor("Straße 1.wav")}, {"assets/Straße 1.wav", audio}}));
        ASSERT_TRUE(reply);
        EXPECT_EQ(reply->status, 201) << reply->body;
        EXPECT_EQ(nlohmann::json::parse(reply->body)["release"]["id"], id);
    }
    EXPECT_EQ(read("0002/metadata.json"), metadataFor("Straße 1.wav"));
    EXPECT_EQ(read("0002/assets/Straße 1.wav"), audio);
    EXPECT_TRUE(isStagingEmpty());
}

TEST_F(UploadTest, RefusesArchivesThatDoNotFit) {
    const auto good = metadataFor("a.wav");
    const Entries cases[] = {
        {{"assets/a.wav", "x"}},                                                   // no metadata
        {{"metadata.json", good}},                                                 // no audio
        {{"metadata.json", good}, {"assets/a.wav", "x"}, {"assets/b.wav", "x"}},   // too much
        {{"metadata.json", good}, {"assets/a.wav", "x"}, {"notes.txt", "x"}},      // elsewhere
        {{"metadata.json", good}, {"assets/a.wav", "x"}, {"../evil", "x"}},        // outside
        {{"metadata.json", good}, {"assets/a.wav", "x"}, {"/etc/evil", "x"}},      // absolute
        {{"metadata.json", good}, {"assets/a.wav", "x"}, {"assets/../evil", "x"}}, // outside
        {{"metadata.json", good}, {"assets/a.wav", "x"}, {"assets\\evil", "x"}}, // another system's separator
        {{"metadata.json", good}, {"assets/a.wav", "x"}, {"assets/sub/b.wav", ""}}, // too deep
    };
    for (const auto& entries : cases) {
        const auto reply = m_running.upload(m_token, zipOf(entries));
        ASSERT_TRUE(reply);
        EXPECT_EQ(reply->status, 400);
        EXPECT_TRUE(nlohmann::json::parse(reply->body)["errors"].is_string());
    }
    EXPECT_EQ(folders(), 0);
    EXPECT_TRUE(isStagingEmpty());
}

// Whatever arrives, there is an answer, and nothing is left lying about.
TEST_F(UploadTest, SurvivesDamage) {
    const auto good =
        zipOf({{"metadata.json", metadataFor("a.wav")}, {"assets/a.wav", std::string(500, 'x')}});
    std::mt19937 random(7); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same damage in every run
    std::ptrdiff_t accepted = 0;
    for (int i = 0; i < 200; ++i) {
        auto damaged = good;
        damaged[random() % damaged.size()] = static_cast<char>(random());
        damaged.resize(i % 4 == 0 ? random() % damaged.size() : damaged.size());
        const auto reply = m_running.upload(m_token, damaged);
        ASSERT_TRUE(reply);
        ASSERT_TRUE(reply->status == 201 || reply->status == 400 || reply->status == 422) << reply->body;
        accepted += reply->status == 201 ? 1 : 0;
    }
    EXPECT_EQ(folders(), accepted);
    EXPECT_TRUE(isStagingEmpty());
}

TEST_F(UploadTest, NeedsTheToken) {
    const auto archive = zipOf({{"metadata.json", metadataFor("a.wav")}, {"assets/a.wav", "x"}});
    for (const auto& token : {std::string(), std::string("wrong"), m_token + "x", m_token.substr(1)}) {
        EXPECT_EQ(m_running.upload(token, archive)->status, 401);
    }
    EXPECT_EQ(folders(), 0);
}

} // namespace
