#include "tests/sandbox/runningservice.h"

#include <gtest/gtest.h>
#include <httplib.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>

namespace {

namespace fs = std::filesystem;

class UploadTest : public testing::Test {
protected:
    // Folders of accepted releases.
    std::ptrdiff_t folders() const {
        return std::count_if(fs::directory_iterator(m_running.inbox()), {},
                             [](const auto& e) { return e.path().filename().string().starts_with("0"); });
    }

    RunningService m_running;
    std::string m_token = m_running.signIn();
};

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
    EXPECT_TRUE(fs::is_empty(m_running.inbox() / ".staging"));
}

} // namespace
