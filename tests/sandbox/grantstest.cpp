#include "sandbox/pages/grants.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;
using sandbox::Grants;

class GrantsTest : public testing::Test {
protected:
    Grants::Clock::time_point m_now{};
    Grants m_grants{1h, [this] { return m_now; }};
};

TEST_F(GrantsTest, ACodeWorksOnceForItsClientAndAddress) {
    const auto code = m_grants.issueCode("c", "u");
    EXPECT_TRUE(m_grants.redeemCode(code, "c", "u"));
    EXPECT_FALSE(m_grants.redeemCode(code, "c", "u"));

    const struct {
        const char* client;
        const char* uri;
    } others[] = {{"c", "v"}, {"d", "u"}, {"", ""}};
    for (const auto& other : others) {
        const auto next = m_grants.issueCode("c", "u");
        EXPECT_FALSE(m_grants.redeemCode(next, other.client, other.uri));
        EXPECT_FALSE(m_grants.redeemCode(next, "c", "u")) << "a failed try uses the code up";
    }
}

TEST_F(GrantsTest, EverythingRunsOut) {
    const auto code = m_grants.issueCode("c", "u");
    const auto ticket = m_grants.issueTicket();
    const auto token = m_grants.issueAccessToken();
    m_now += 10min;
    EXPECT_FALSE(m_grants.redeemCode(code, "c", "u"));
    EXPECT_FALSE(m_grants.redeemTicket(ticket));
    EXPECT_TRUE(m_grants.accepts(token));
    m_now += 50min;
    EXPECT_FALSE(m_grants.accepts(token));
    m_grants.issueAccessToken();
    EXPECT_EQ(m_grants.counts().tokens, 1U) << "what ran out is forgotten";
}

TEST_F(GrantsTest, EveryCodeShowsBadEscaping) {
    for (int i = 0; i < 50; ++i) {
        const auto code = m_grants.issueCode("c", "u");
        for (const char c : {'+', '/', '='}) {
            EXPECT_NE(code.find(c), std::string::npos) << code;
        }
    }
}

TEST_F(GrantsTest, KeepsNoMoreThanItCan) {
    for (int i = 0; i < 3000; ++i) {
        m_now += 1ms;
        m_grants.issueTicket();
        m_grants.issueCode("c", "u");
    }
    EXPECT_LE(m_grants.counts().codes, 1000U);
}

} // namespace
