#include "framework/abi/credentials.h"
#include "framework/support/objects/text.h"
#include "host/security/secretservice.h"
#include "host/security/storeproblem.h"

#include <string>

namespace xbr::host {

namespace {

class Credential final : public Object<ICredential> {
public:
    explicit Credential(FoundSecret found) : m_found(std::move(found)) {}

    Text userName() const noexcept override { return toText(m_found.userName); }
    Text password() const noexcept override { return toText(m_found.password); }

private:
    FoundSecret m_found;
};

Result resultOf(StoreResult result) {
    switch (result) {
    case StoreResult::kDone:
        return kOk;
    case StoreResult::kNothing:
        return kFalse;
    default:
        return kUnexpected;
    }
}

/// A credential without a name could be told apart neither here nor by people who look through their keyring.
bool isTarget(Text target) {
    return target.length > 0 && isAttributeText(view(target));
}

class CredentialManager final : public Object<ICredentialManager> {
public:
    Result add(Text target, Text userName, Text password, Text note) noexcept override {
        if (!isTarget(target) || !isAttributeText(view(userName)) || !isAttributeText(view(note))) {
            return kInvalidArgument;
        }
        const StoreResult result = storeSecret(view(target), view(userName), view(password), view(note));
        if (result != StoreResult::kDone) {
            tellStoreProblem(result);
        }
        return resultOf(result);
    }

    Result find(Text target, ICredential** out) noexcept override {
        *out = nullptr;
        if (!isTarget(target)) {
            return kInvalidArgument;
        }
        FoundSecret found;
        const StoreResult result = findSecret(view(target), found);
        if (result == StoreResult::kDone) {
            *out = make<Credential>(std::move(found)).detach();
        }
        return resultOf(result);
    }

    Result remove(Text target) noexcept override {
        if (!isTarget(target)) {
            return kInvalidArgument;
        }
        const StoreResult result = removeSecrets(view(target));
        tellRemoveProblem(result);
        return resultOf(result);
    }
};

} // namespace

} // namespace xbr::host

xbr::ICredentialManager* XBRGetCredentialManager() noexcept {
    static xbr::host::CredentialManager manager;
    return &manager;
}
