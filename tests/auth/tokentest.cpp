#include "auth/oauth2tokens.h"
#include "auth/tokenstore.h"
#include "framework/support/data/memorystream.h"
#include "tests/fakehost/fakehost.h"

#include <gtest/gtest.h>

namespace {

using brindlex::OAuth2Tokens;
using fakehost::host;

OAuth2Tokens tokens(std::string access, std::string refresh, std::string extra) {
    OAuth2Tokens record;
    record.accessToken = std::move(access);
    record.refreshToken = std::move(refresh);
    record.extraData = std::move(extra);
    return record;
}

class TokenTest : public testing::Test {
protected:
    TokenTest() { fakehost::resetHost(); }

    static bool parse(OAuth2Tokens& record, const std::string& reply) {
        const auto body = xbr::make<xbr::MemoryStream>();
        body->write(reply); // the position is at the end: the reader has to rewind
        return brindlex::parseTokenReply(record, *body, 1000);
    }
};

TEST_F(TokenTest, TextHoldsTheThreeParts) {
    struct Case {
        OAuth2Tokens record;
        const char* text;
    };
    const Case cases[] = {{tokens("A", "R", ""), "A&R"},
                          {tokens("A", "", "X"), "A&&X"},
                          {tokens("A", "R", "X"), "A&R&X"},
                          {tokens("", "R", ""), "&R"}};
    for (const auto& [record, text] : cases) {
        EXPECT_EQ(brindlex::formatTokenText(record), text);
        OAuth2Tokens read = tokens("old", "old", "old");
        EXPECT_TRUE(brindlex::parseTokenText(read, text));
        EXPECT_EQ(read.accessToken, record.accessToken) << text;
        EXPECT_EQ(read.refreshToken, record.refreshToken) << text;
        EXPECT_EQ(read.extraData, record.extraData) << text;
    }
}

TEST_F(TokenTest, TextIsReadAsOlderVersionsWroteIt) {
    struct Case {
        const char* text;
        OAuth2Tokens expected;
    };
    const Case cases[] = {{"A", tokens("A", "A", "")}, // one token alone is both
                          {"A&", tokens("A", "", "")},
                          {"A&R&", tokens("A", "R", "")},
                          {"A&b&c&X", tokens("A", "b&c", "X")},
                          {"A&R&\xC3\xA9!", tokens("A", "R", "?!")}};
    for (const auto& [text, expected] : cases) {
        OAuth2Tokens read;
        EXPECT_TRUE(brindlex::parseTokenText(read, text)) << text;
        EXPECT_EQ(read.accessToken, expected.accessToken) << text;
        EXPECT_EQ(read.refreshToken, expected.refreshToken) << text;
        EXPECT_EQ(read.extraData, expected.extraData) << text;
    }
    for (const char* text : {"", "&", "&&", "&&X"}) {
        OAuth2Tokens read = tokens("A", "R", "X");
        EXPECT_FALSE(brindlex::parseTokenText(read, text)) << text;
        EXPECT_EQ(read.accessToken, "A") << "left as it was";
    }
}

TEST_F(TokenTest, ReplyReplacesTheTokens) {
    OAuth2Tokens record = tokens("old", "old", "old");
    record.idToken = "old";
    record.expiresAt = 7;
    ASSERT_TRUE(parse(record, R"({"access_token":"new"})"));
    EXPECT_EQ(record.accessToken, "new");
    EXPECT_EQ(record.refreshToken, "");
    EXPECT_EQ(record.idToken, "");
    EXPECT_EQ(record.extraData, "");
    EXPECT_EQ(record.expiresAt, 7) << "kept without expires_in";
    ASSERT_TRUE(parse(record, R"({"expires_in":3600,"id_token":"i","refresh_token":42})"));
    EXPECT_EQ(record.expiresAt, 4600);
    EXPECT_EQ(record.idToken, "i");
    EXPECT_EQ(record.refreshToken, "") << "not a text";
    EXPECT_EQ(record.accessToken, "");
    ASSERT_TRUE(parse(record, R"({"expires_in":null})"));
    EXPECT_EQ(record.expiresAt, 4600);
    ASSERT_TRUE(parse(record, R"({"expires_in":9223372036854775807})"));
    EXPECT_EQ(record.expiresAt, std::numeric_limits<std::int64_t>::max());
}

TEST_F(TokenTest, UnreadableReplyChangesNothing) {
    for (const char* reply : {"", "no json", "[]", "\"text\"", "{\"access_token\":"}) {
        OAuth2Tokens record = tokens("A", "R", "X");
        EXPECT_FALSE(parse(record, reply)) << reply;
        EXPECT_EQ(brindlex::formatTokenText(record), "A&R&X") << reply;
    }
}

TEST_F(TokenTest, StoreKeepsOneCredential) {
    ASSERT_TRUE(brindlex::storeTokens(tokens("A", "R", ""), "Name"));
    ASSERT_TRUE(host().credentials.stored);
    EXPECT_EQ(host().credentials.stored->target, "Name");
    EXPECT_EQ(host().credentials.stored->userName, "OAuth2Tokens");
    EXPECT_EQ(host().credentials.stored->password, "A&R");
    EXPECT_EQ(host().credentials.stored->note, "");

    OAuth2Tokens record;
    record.idToken = "kept";
    record.expiresAt = 5;
    EXPECT_FALSE(brindlex::loadTokens(record, "Other"));
    ASSERT_TRUE(brindlex::loadTokens(record, "Name"));
    EXPECT_EQ(record.accessToken, "A");
    EXPECT_EQ(record.idToken, "kept");
    EXPECT_EQ(record.expiresAt, 5);

    host().credentials.stored->userName = "somebody else";
    EXPECT_FALSE(brindlex::loadTokens(record, "Name"));
    EXPECT_TRUE(host().credentials.stored) << "a foreign credential is left alone";
    host().credentials.locked = true;
    EXPECT_FALSE(brindlex::storeTokens(record, "Name"));
}

} // namespace
