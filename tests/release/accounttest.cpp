#include "release/account.h"

#include "framework/support/data/memorystream.h"
#include "tests/fakehost/fakehost.h"

#include <gtest/gtest.h>

namespace {

xbr::Ref<brindlex::Account> parse(const std::string& reply) {
    const auto body = xbr::make<xbr::MemoryStream>();
    body->write(reply);
    return brindlex::parseAccountReply(*body);
}

TEST(Account, IsReadFromTheUserObject) {
    fakehost::resetHost();
    const auto account =
        parse(R"({"user":{"account_id":42,"name":"Mara","email":"m@x","more":1},"other":[]})");
    ASSERT_TRUE(account);
    EXPECT_EQ(account->accountId, 42);
    EXPECT_EQ(account->name, "Mara");
    EXPECT_EQ(account->email, "m@x");
    for (const char* reply : {"", "[]", "{}", R"({"user":[]})", R"({"user":"Mara"})", R"({"user":null})"}) {
        EXPECT_FALSE(parse(reply)) << reply;
    }
}

TEST(Account, TakesOnlyWhatIsThereAndFits) {
    fakehost::resetHost();
    brindlex::Account account;
    account.accountId = 7;
    account.name = "old";
    account.email = "old@x";
    const auto user = xbr::make<xbr::Attributes>();
    user->set("account_id", "42");
    user->set("name", xbr::integerValue(1));
    EXPECT_TRUE(brindlex::loadAccount(account, *user));
    EXPECT_EQ(account.accountId, 7) << "a text is no identifier";
    EXPECT_EQ(account.name, "") << "a number is no name";
    EXPECT_EQ(account.email, "old@x") << "absent";
    user->set("account_id", xbr::boolValue(true));
    brindlex::loadAccount(account, *user);
    EXPECT_EQ(account.accountId, 7);
}

} // namespace
