#include "sandbox/http/text.h"
#include "sandbox/visitor.h"
#include "tests/sandbox/runningservice.h"

#include <gtest/gtest.h>
#include <httplib.h>
#include <nlohmann/json.hpp>

#include <chrono>
#include <future>

namespace {

using nlohmann::json;
using Clock = std::chrono::steady_clock;

constexpr const char* kAccount = "/api/frontstage/account";
constexpr const char* kForm = "application/x-www-form-urlencoded";

class ServiceTest : public testing::Test {
protected:
    httplib::Result account(const std::string& token) {
        return m_running.client().Get(kAccount, {{"Authorization", "Bearer " + token}});
    }
    std::string freshCode() {
        sandbox::Visitor visitor("mara@example.org", "night-drive", true);
        return queryValue(visitor.authorize(m_running.authorizeUrl()), "code");
    }

    RunningService m_running;
};

TEST_F(ServiceTest, RefusesToRedirectStrangers) {
    for (const char* query :
         {"", "client_id=x&redirect_uri=brindlex%3A%2F%2Fauthorize&response_type=code",
          "client_id=brindlex-demo&redirect_uri=http%3A%2F%2Fexample.org&response_type=code",
          "client_id=brindlex-demo&redirect_uri=brindlex%3A%2F%2Fauthorize&response_type=token",
          "client_id=brindlex-demo&redirect_uri=brindlex%3A%2F%2Fauthorize&response_type=code&jt=%zz"}) {
        const auto reply = m_running.client().Get("/oauth/authorize?" + std::string(query));
        EXPECT_EQ(reply->status, 400) << query;
        EXPECT_FALSE(reply->has_header("Location")) << query;
    }
}

TEST_F(ServiceTest, EscapesWhatItRepeats) {
    const std::string evil = R"("><script>alert('1')</script>)";
    const auto reply = m_running.client().Post(
        "/oauth/authorize",
        "client_id=brindlex-demo&redirect_uri=brindlex%3A%2F%2Fauthorize&response_type=code&jt=" +
            sandbox::percentEncode(evil) + "&email=" + sandbox::percentEncode(evil) + "&password=x",
        kForm);
    EXPECT_EQ(reply->status, 403);
    EXPECT_EQ(reply->body.find("<script"), std::string::npos);
}

TEST_F(ServiceTest, ConsentNeedsASignIn) {
    for (const char* ticket : {"", "&ticket=", "&ticket=guess"}) {
        const auto reply = m_running.client().Post(
            "/oauth/authorize",
            std::string(
                "client_id=brindlex-demo&redirect_uri=brindlex%3A%2F%2Fauthorize&response_type=code") +
                "&decision=allow" + ticket,
            kForm);
        EXPECT_EQ(reply->status, 403);
    }
}

TEST_F(ServiceTest, ExchangesACodeOnce) {
    const auto code = freshCode();
    const auto reply = m_running.exchange(code);
    EXPECT_EQ(reply->status, 200);
    EXPECT_EQ(reply->get_header_value("Cache-Control"), "no-store");
    const auto tokens = json::parse(reply->body);
    EXPECT_EQ(tokens["token_type"], "Bearer");
    EXPECT_EQ(tokens["expires_in"], 3600);
    EXPECT_EQ(json::parse(m_running.exchange(code)->body)["error"], "invalid_grant");

    const auto reached = account(tokens["access_token"]);
    EXPECT_EQ(json::parse(reached->body)["user"]["account_id"], 4711);
    EXPECT_EQ(account(tokens["refresh_token"])->status, 401);
}

TEST_F(ServiceTest, TellsWhatIsWrongWithATokenRequest) {
    const std::string good = "client_id=brindlex-demo&client_secret=brindlex-demo-secret&redirect_uri="
                             "brindlex%3A%2F%2Fauthorize&grant_type=authorization_code&code=";
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
    };
    for (const auto& c : cases) {
        auto body = good + sandbox::percentEncode(freshCode());
        body.replace(body.find(c.part), c.part.size(), c.other);
        const auto reply = m_running.client().Post("/oauth/token", body, kForm);
        EXPECT_EQ(reply->status, c.status) << body;
        EXPECT_EQ(json::parse(reply->body)["error"], c.error) << body;
    }
    const auto unescaped = m_running.client().Post("/oauth/token", good + freshCode(), kForm);
    EXPECT_EQ(unescaped->status, 400) << "a bare '+' is a blank";
    const auto asJson = m_running.client().Post("/oauth/token", "{}", "application/json");
    EXPECT_EQ(json::parse(asJson->body)["error"], "invalid_request");
}

TEST_F(ServiceTest, FaultsHappenAsOftenAsAsked) {
    const auto token = m_running.signIn();
    m_running.addFault(R"({"path":"/api/frontstage/account","times":2,"status":503,"body":"<busy>"})");
    EXPECT_EQ(account(token)->status, 503);
    EXPECT_EQ(account(token)->body, "<busy>");
    EXPECT_EQ(account(token)->status, 200);
    m_running.addFault(R"({"path":"/api/frontstage/account","redirect":"/elsewhere","status":307})");
    const auto moved = account(token);
    EXPECT_EQ(moved->status, 307);
    EXPECT_EQ(moved->get_header_value("Location"), "/elsewhere");
    m_running.addFault(R"({"path":"/api/frontstage/account","status":500})");
    m_running.client().Delete("/control/fault");
    EXPECT_EQ(account(token)->status, 200);
}

TEST_F(ServiceTest, FaultsBreakTheConnection) {
    const auto token = m_running.signIn();
    m_running.addFault(R"({"path":"/api/frontstage/account","reset_after":0})");
    EXPECT_FALSE(account(token));
    m_running.addFault(R"({"path":"/api/frontstage/account","truncate":true})");
    EXPECT_FALSE(account(token));
    m_running.addFault(R"({"path":"/api/frontstage/release_ingestion","reset_after":100000})");
    EXPECT_FALSE(m_running.upload(token, std::string(8'000'000, 'x')));
    EXPECT_EQ(account(token)->status, 200) << "the next connection is fine";
}

TEST_F(ServiceTest, FaultsTakeTheirTime) {
    const auto token = m_running.signIn();
    for (const char* what : {"delay_ms", "stall_ms", "reply_stall_ms"}) {
        m_running.addFault(std::string(R"({"path":"/api/frontstage/account",")") + what + "\":300}");
        const auto start = Clock::now();
        EXPECT_EQ(account(token)->status, 200) << what;
        EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(300)) << what;
    }
}

TEST_F(ServiceTest, AnEarlyReplyDoesNotWaitForTheBody) {
    m_running.addFault(
        R"({"path":"/api/frontstage/release_ingestion","early":true,"status":413,"body":"no"})");
    httplib::Client client("127.0.0.1", m_running.port());
    // Stops in the middle, until the reply could have come.
    const auto reply = client.Post(
        "/api/frontstage/release_ingestion", 1000,
        [](std::size_t offset, std::size_t /*length*/, httplib::DataSink& sink) {
            std::this_thread::sleep_for(std::chrono::milliseconds(offset == 0 ? 0 : 200));
            return sink.write(std::string(500, 'x').data(), 500);
        },
        "multipart/form-data; boundary=B");
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->status, 413);
    const auto log = json::parse(m_running.client().Get("/control/log")->body);
    EXPECT_EQ(log.back()["body_bytes"], 0);
}

TEST_F(ServiceTest, TheLogTellsNamesButNoSecrets) {
    const auto code = freshCode();
    const std::string token = json::parse(m_running.exchange(code)->body)["access_token"];
    account(token);
    m_running.client().Post("/oauth/token", "oops-" + token, kForm);
    const auto text = m_running.client().Get("/control/log")->body;
    for (const auto& secret : {code, sandbox::percentEncode(code), token, std::string("night-drive"),
                               std::string("demo-secret"), std::string("brindlex%3A")}) {
        EXPECT_EQ(text.find(secret), std::string::npos) << secret;
    }
    const auto log = json::parse(text);
    const auto& exchange = log[log.size() - 3];
    EXPECT_EQ(exchange["form_fields"],
              json({"client_id", "client_secret", "redirect_uri", "grant_type", "code"}));
    EXPECT_EQ(exchange["authorization"]["present"], false);
    EXPECT_EQ(log[log.size() - 2]["authorization"]["scheme"], "Bearer");
}

TEST_F(ServiceTest, NewsAreReadAgainOnlyWhenTheyChanged) {
    for (const char* path : {"/feed.atom", "/news/image1.png", "/news/image1@2x.png"}) {
        const auto first = m_running.client().Get(path);
        EXPECT_EQ(first->status, 200);
        const auto tag = first->get_header_value("ETag");
        const auto date = first->get_header_value("Last-Modified");
        const auto status = [&](const httplib::Headers& headers) {
            return m_running.client().Get(path, headers)->status;
        };
        EXPECT_EQ(status({{"If-None-Match", tag}}), 304);
        EXPECT_EQ(status({{"If-None-Match", "\"other\", W/" + tag}}), 304);
        EXPECT_EQ(status({{"If-None-Match", "\"other\""}, {"If-Modified-Since", date}}), 200);
        EXPECT_EQ(status({{"If-Modified-Since", date}}), 304);
    }
}

TEST_F(ServiceTest, StopsInTheMiddleOfARequest) {
    const auto start = Clock::now();
    std::future<httplib::Result> pending;
    {
        RunningService other;
        other.addFault(R"({"path":"/","delay_ms":60000})");
        pending = std::async(std::launch::async,
                             [port = other.port()] { return httplib::Client("127.0.0.1", port).Get("/"); });
        while (other.client().Get("/control/state")->body.find("\"faults\": []") == std::string::npos) {
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    }
    pending.wait();
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(10));
}

} // namespace
