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

constexpr const char* kForm = "application/x-www-form-urlencoded";

class ServiceTest : public testing::Test {
protected:
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
