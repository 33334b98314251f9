#include "sandbox/http/form.h"
#include "sandbox/http/text.h"
#include "sandbox/visitor.h"
#include "tests/sandbox/runningservice.h"

#include <gtest/gtest.h>
#include <httplib.h>
#include <nlohmann/json.hpp>
#include <zip.h>

#include <fstream>
#include <map>
#include <sstream>

namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using sandbox::percentEncode;

const std::string kClient =
    "client_id=brindlex-demo&redirect_uri=brindlex%3A%2F%2Fauthorize&response_type=code";

using Entries = std::map<std::string, std::string>;

class ServiceTest : public testing::Test {
protected:
    std::string freshCode() {
        const sandbox::Visitor visitor("mara@example.org", "night-drive", true);
        const auto url = visitor.authorize(m_running.authorizeUrl());
        return percentEncode(sandbox::Form::parse(url.substr(url.find('?') + 1))->value("code"));
    }
    httplib::Result post(const std::string& path, const std::string& body,
                         const char* type = "application/x-www-form-urlencoded") {
        return m_running.client().Post(path, body, type);
    }
    /// A ZIP archive, packed as a proper multipart body.
    std::string bodyOf(const Entries& entries) {
        const auto file = m_running.folder() / "archive.zip";
        zip_t* archive = zip_open(file.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
        for (const auto& [name, data] : entries) {
            zip_file_add(archive, name.c_str(), zip_source_buffer(archive, data.data(), data.size(), 0),
                         ZIP_FL_ENC_UTF_8);
        }
        EXPECT_EQ(zip_close(archive), 0);
        std::ostringstream bytes;
        bytes << "--B\r\nContent-Disposition: form-data; name=\"payload\"; filename=\"payload.zip\"\r\n\r\n"
              << std::ifstream(file, std::ios::binary).rdbuf() << "\r\n--B--\r\n";
        return bytes.str();
    }

    RunningService m_running;
    const std::string m_goodToken = "client_id=brindlex-demo&client_secret=brindlex-demo-secret&redirect_uri="
                                    "brindlex%3A%2F%2Fauthorize&grant_type=authorization_code&code=";
};

TEST_F(ServiceTest, EscapesWhatItRepeatsAndGivesNothingWithoutASignIn) {
    const auto evil = percentEncode(R"("><script>alert('1')</script>)");
    for (const auto& query :
         {"&jt=" + evil + "&email=" + evil + "&password=x", std::string("&decision=allow"),
          std::string("&decision=allow&ticket="), std::string("&decision=allow&ticket=guess")}) {
        const auto reply = post("/oauth/authorize", kClient + query);
        EXPECT_EQ(reply->status, 403) << query;
        EXPECT_EQ(reply->body.find("<script"), std::string::npos);
    }
}

TEST_F(ServiceTest, TellsWhatIsWrongWithATokenRequest) {
    const struct {
        std::string part;
        std::string other;
        int status;
        const char* error;
    } cases[] = {
        {"demo-secret", "guess", 401, "invalid_client"},
        {"brindlex-demo&", "x&", 401, "invalid_client"},
        {"authorization_code", "password", 400, "unsupported_grant_type"},
        {"%2Fauthorize", "%2Fauthorize%2F", 400, "invalid_grant"},
        {"grant_type", "&grant_type", 400, "invalid_request"},
        {"%2B", "+", 400, "invalid_grant"}, // a bare '+' is a blank
    };
    for (const auto& [part, other, status, error] : cases) {
        auto body = m_goodToken + freshCode();
        body.replace(body.find(part), part.size(), other);
        const auto reply = post("/oauth/token", body);
        EXPECT_EQ(reply->status, status) << body;
        EXPECT_EQ(json::parse(reply->body)["error"], error) << body;
    }
    EXPECT_EQ(json::parse(post("/oauth/token", "{}", "application/json")->body)["error"], "invalid_request");
}

TEST_F(ServiceTest, RefusesArchivesThatDoNotFit) {
    const std::string good =
        R"({"external_release_id":"","client_id":"brindlex-demo","title":"T","main_artists":[{"name":"L"}],)"
        R"("primary_genre":"Pop","songs":[{"title":"O","audio_filename":"a.wav",)"
        R"("artists":[{"name":"L","roles":["Main Artist"]}]}]})";
    const std::string token =
        json::parse(post("/oauth/token", m_goodToken + freshCode())->body).at("access_token");
    const auto upload = [&](const Entries& entries) {
        return m_running.client().Post("/api/frontstage/release_ingestion",
                                       {{"Authorization", "Bearer " + token}}, bodyOf(entries),
                                       "multipart/form-data; boundary=B");
    };
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
        const auto reply = upload(entries);
        EXPECT_EQ(reply->status, 400);
        EXPECT_TRUE(json::parse(reply->body)["errors"].is_string());
    }
    const auto releases = [&] {
        return std::count_if(fs::directory_iterator(m_running.inbox()), {}, [](const auto& each) {
            return each.path().filename().string().starts_with("0");
        });
    };
    EXPECT_EQ(releases(), 0);
    EXPECT_TRUE(fs::is_empty(m_running.inbox() / ".staging"));
    EXPECT_EQ(upload({{"metadata.json", good}, {"assets/a.wav", "x"}})->status, 201);
    EXPECT_EQ(releases(), 1);
}

} // namespace
