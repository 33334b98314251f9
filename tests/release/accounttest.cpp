#include "release/account.h"

#include "framework/support/data/memorystream.h"
#include "tests/fakehost/fakehost.h"

#include <gtest/gtest.h>

namespace {

TEST(Account, IsReadFromTheUserObject) {
    fakehost::resetHost();
    for (const auto& [reply, expected] : fakehost::Rows<const char*, const char*>{
             {R"({"user":{"account_id":42,"name":"Mara","email":"m@x","more":1},"other":[]})", "42 Mara m@x"},
             {R"({"user":{"account_id":"42","name":1}})", "0  "}, // no identifier, and no name
             {R"({"user":{"account_id":true}})", "0  "},
             {"", nullptr},
             {"[]", nullptr},
             {"{}", nullptr},
             {R"({"user":[]})", nullptr},
             {R"({"user":"Mara"})", nullptr},
             {R"({"user":null})", nullptr},
         }) {
        const auto body = xbr::make<xbr::MemoryStream>();
        body->write(std::string_view(reply));
        const auto account = brindlex::parseAccountReply(*body);
        ASSERT_EQ(static_cast<bool>(account), expected != nullptr) << reply;
        EXPECT_TRUE(!account ||
                    std::to_string(account->accountId) + " " + account->name + " " + account->email ==
                        expected)
            << reply;
    }
}

TEST(Account, KeepsWhatIsAbsentOrDoesNotFit) {
    brindlex::Account account;
    account.accountId = 7;
    account.name = account.email = "old";
    const auto user = xbr::make<xbr::Attributes>();
    user->set("account_id", "42");
    user->set("name", xbr::integerValue(1));
    EXPECT_TRUE(brindlex::loadAccount(account, *user));
    EXPECT_EQ(std::to_string(account.accountId) + account.name + account.email, "7old")
        << "a text is no identifier, and a number no name";
}

} // namespace
