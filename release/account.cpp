#include "release/account.h"

#include "framework/support/data/attributes.h"
#include "framework/support/data/memorystream.h"
#include "framework/support/objects/text.h"

namespace brindlex {

namespace {

void loadText(const xbr::IAttributes& user, std::string_view key, std::string& field) {
    xbr::Value value{};
    if (user.get(xbr::toText(key), &value) == xbr::kOk) {
        field = xbr::textOf(value);
    }
}

} // namespace

bool loadAccount(Account& account, const xbr::IAttributes& user) {
    xbr::Value id{};
    user.get(xbr::toText("account_id"), &id);
    if (id.kind == xbr::ValueKind::kInteger) {
        account.accountId = id.integer;
    }
    loadText(user, "name", account.name);
    loadText(user, "email", account.email);
    return true;
}

xbr::Ref<Account> parseAccountReply(xbr::IStream& body) {
    const auto reply = xbr::rewind(body) ? xbr::readJson(body) : nullptr;
    const auto user = reply ? xbr::query<xbr::IAttributes>(reply->get("user").object) : nullptr;
    if (!user) {
        return {};
    }
    auto account = xbr::make<Account>();
    loadAccount(*account, *user);
    return account;
}

} // namespace brindlex
