#pragma once

#include "framework/abi/credentials.h"
#include "framework/support/objects/text.h"

#include <string>
#include <string_view>

namespace xbr::host::test {

inline Result add(std::string_view target, std::string_view user, std::string_view password,
                  std::string_view note = {}) {
    return XBRGetCredentialManager()->add(toText(target), toText(user), toText(password), toText(note));
}

inline Result remove(std::string_view target) {
    return XBRGetCredentialManager()->remove(toText(target));
}

/// "user|password" of the credential that is found, or what the search answered.
inline std::string find(std::string_view target) {
    Ref<ICredential> found;
    const Result result = XBRGetCredentialManager()->find(toText(target), found.out());
    if (result == kOk) {
        return toString(found->userName()) + "|" + toString(found->password());
    }
    return found ? "failed, yet there is one" : result == kFalse ? "none" : "failed";
}

} // namespace xbr::host::test
