#pragma once

#include "framework/abi/text.h"

namespace xbr {

/// One credential of the store, as it was when it was found.
struct ICredential : IObject {
    static constexpr Uid kUid = uid("f893b5c8-2c8f-4898-9345-aa245c3eac9a");

    virtual Text userName() const noexcept = 0;
    virtual Text password() const noexcept = 0;
};

/// The user's system credential store. Texts are valid UTF-8 without zero bytes and a target is not empty,
/// otherwise kInvalidArgument. A call may take as long as the user needs to unlock the store; nothing of the
/// module is called meanwhile.
struct ICredentialManager : IObject {
    static constexpr Uid kUid = uid("2ab431ef-49fc-445a-9599-2d14111e31e0");

    /// Stores a credential; one of the same target and user name is replaced. `note` is kept with it and not
    /// looked up. kUnexpected: there is no store, it is locked and the user refused, or it does not answer in
    /// time.
    virtual Result add(Text target, Text userName, Text password, Text note) noexcept = 0;

    /// Finds the credential of a target that was stored last, handed over. kFalse and null when there is
    /// none; kUnexpected: the store is missing or locked, or the user refused.
    virtual Result find(Text target, ICredential** out) noexcept = 0;

    /// Removes the credentials of a target. kFalse when there was none; kUnexpected as above.
    virtual Result remove(Text target) noexcept = 0;
};

} // namespace xbr

/// Answers the one credential manager. Never null.
XBR_API xbr::ICredentialManager* XBRGetCredentialManager() noexcept;
