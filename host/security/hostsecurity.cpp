#include "host/security/hostsecurity.h"

#include "framework/abi/credentials.h"
#include "framework/support/objects/text.h"
#include "host/security/secretservice.h"
#include "host/security/storecall.h"

#include <memory>
#include <string>

namespace xbr::host {

namespace {

constexpr std::chrono::seconds kLessPatience{1};

StoreListener* g_listener = nullptr;

/// Runs an operation beside the main thread, and tells how it ended.
StoreResult ask(StoreOperation kind, StoreCall::Operation operation) {
    static bool wasSilent = false; // then it gets less time: a sign-in asks more than once
    const StoreResult result =
        StoreCall::run(std::move(operation), g_listener, wasSilent ? kLessPatience : StoreCall::kPatience);
    wasSilent = result == StoreResult::kSilent;
    if (g_listener) {
        g_listener->storeAnswered(kind, result);
    }
    return result;
}

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
        return resultOf(ask(StoreOperation::kAdd,
                            [target = toString(target), user = toString(userName),
                             password = toString(password), note = toString(note)](StoreCall& call) {
                                return storeSecret(call, target, user, password, note);
                            }));
    }

    Result find(Text target, ICredential** out) noexcept override {
        *out = nullptr;
        if (!isTarget(target)) {
            return kInvalidArgument;
        }
        const auto found = std::make_shared<FoundSecret>();
        const StoreResult result =
            ask(StoreOperation::kFind, [target = toString(target), found](StoreCall& call) {
                return findSecret(call, target, *found);
            });
        if (result == StoreResult::kDone) {
            *out = make<Credential>(std::move(*found)).detach();
        }
        return resultOf(result);
    }

    Result remove(Text target) noexcept override {
        if (!isTarget(target)) {
            return kInvalidArgument;
        }
        return resultOf(ask(StoreOperation::kRemove, [target = toString(target)](StoreCall& call) {
            return removeSecrets(call, target);
        }));
    }
};

} // namespace

void setStoreListener(StoreListener* listener) {
    g_listener = listener;
}

bool isSessionBusSilent() {
    return StoreCall::run([](StoreCall& call) { return connectToBus(call); }, nullptr, kLessPatience) ==
           StoreResult::kSilent;
}

} // namespace xbr::host

xbr::ICredentialManager* XBRGetCredentialManager() noexcept {
    static xbr::host::CredentialManager manager;
    return &manager;
}
