#include "auth/oauth2tokens.h"
#include "auth/tokenstore.h"
#include "framework/support/data/memorystream.h"
#include "tests/fakehost/fakehost.h"

#include <gtest/gtest.h>

namespace {

using brindlex::OAuth2Tokens;
using fakehost::host;
using fakehost::Rows;

OAuth2Tokens tokens(std::string access, std::string refresh, std::string extra) {
    OAuth2Tokens record;
    record.accessToken = std::move(access);
    record.refreshToken = std::move(refresh);
    record.extraData = std::move(extra);
    record.idToken = "old";
    record.expiresAt = 7;
    return record;
}

/// Everything that is known: access, refresh, extra, identity, end.
std::string known(const OAuth2Tokens& record) {
    return record.accessToken + "|" + record.refreshToken + "|" + record.extraData + "|" + record.idToken +
           "|" + std::to_string(record.expiresAt);
}

class TokenTest : public testing::Test {
protected:
    TokenTest() { fakehost::resetHost(); }
};

TEST_F(TokenTest, TextHoldsTheThreePartsAndIsReadAsOlderVersionsWroteIt) {
    // The text, what it is read as, and what that is written as.
    for (const auto& [text, read, written] : Rows<const char*, std::string, const char*>{
             {"A&R", "A|R|", "A&R"},
             {"A&&X", "A||X", "A&&X"},
             {"A&R&X", "A|R|X", "A&R&X"},
             {"&R", "|R|", "&R"},
             {"A", "A|A|", "A&A"}, // one token alone is both
             {"A&", "A||", "A"},
             {"A&R&", "A|R|", "A&R"},
             {"A&b&c&X", "A|b&c|X", "A&b&c&X"},
             {"A&R&\xC3\xA9!", "A|R|?!", "A&R&?!"},
         }) {
        OAuth2Tokens record = tokens("old", "old", "old");
        EXPECT_TRUE(brindlex::parseTokenText(record, text)) << text;
        EXPECT_EQ(known(record), read + "|old|7") << text;
        EXPECT_EQ(brindlex::formatTokenText(record), written) << text;
    }
    for (const char* text : {"", "&", "&&", "&&X"}) {
        OAuth2Tokens record = tokens("A", "R", "X");
        EXPECT_FALSE(brindlex::parseTokenText(record, text)) << text;
        EXPECT_EQ(record.accessToken, "A") << "left as it was";
    }
}

TEST_F(TokenTest, ReplyReplacesTheTokens) {
    for (const auto& [reply, after] : Rows<const char*, const char*>{
             {R"({"access_token":"new"})", "new||||7"}, // the end is kept
             {R"({"expires_in":3600,"id_token":"i","refresh_token":42})", "|||i|4600"},
             {R"({"expires_in":null})", "||||7"},
             {R"({"expires_in":9223372036854775807})", "||||9223372036854775807"},
             {"", nullptr},
             {"no json", nullptr},
             {"[]", nullptr},
             {"\"text\"", nullptr},
             {"{\"access_token\":", nullptr},
         }) {
        OAuth2Tokens record = tokens("A", "R", "X");
        const auto body = xbr::make<xbr::MemoryStream>();
        body->write(std::string_view(reply)); // the position is at the end: the reader has to rewind
        EXPECT_EQ(brindlex::parseTokenReply(record, *body, 1000), after != nullptr) << reply;
        EXPECT_EQ(known(record), after ? after : "A|R|X|old|7") << reply;
    }
}

TEST_F(TokenTest, StoreKeepsOneCredential) {
    ASSERT_TRUE(brindlex::storeTokens(tokens("A", "R", ""), "Name"));
    auto& stored = host().credentials.stored;
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->target + "|" + stored->userName + "|" + stored->password + "|" + stored->note,
              "Name|OAuth2Tokens|A&R|");

    OAuth2Tokens record = tokens("", "", "");
    EXPECT_FALSE(brindlex::loadTokens(record, "Other"));
    ASSERT_TRUE(brindlex::loadTokens(record, "Name"));
    EXPECT_EQ(known(record), "A|R||old|7") << "what is not kept is left";

    stored->userName = "somebody else";
    EXPECT_FALSE(brindlex::loadTokens(record, "Name"));
    EXPECT_TRUE(stored) << "a foreign credential is left alone";
    host().failing = {"add"};
    EXPECT_FALSE(brindlex::storeTokens(record, "Name"));
}

} // namespace
