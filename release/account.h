#pragma once

#include "framework/abi/stream.h"
#include "framework/support/data/attributes.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace brindlex {

/// Path of the account query, relative to the service's base URL.
constexpr std::string_view kAccountPath = "api/frontstage/account";

/// Who is signed in.
struct Account final : public xbr::RefCounted {
    std::int64_t accountId = 0;
    std::string name;
    std::string email;
};

/// Takes the keys "account_id", "name" and "email" that are there; others stay as they were. A name or email
/// that is no text becomes empty; an identifier that is no integer is passed over. True: no
/// key has to be there.
bool loadAccount(Account& account, const xbr::IAttributes& user);

/// Reads the reply of the account query from its start; empty when it is no JSON or has no "user" object.
xbr::Ref<Account> parseAccountReply(xbr::IStream& body);

} // namespace brindlex
