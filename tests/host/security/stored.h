#pragma once

#include "framework/abi/credentials.h"
#include "framework/support/objects/text.h"
#include "host/security/hostsecurity.h"

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

namespace xbr::host::test {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::milliseconds;

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

/// Hears as the host program does; gives up after a while.
class Hearing final : public StoreListener {
public:
    explicit Hearing(Milliseconds patience = std::chrono::hours(1)) : m_patience(patience) {
        setStoreListener(this);
    }
    Hearing(const Hearing&) = delete;
    Hearing& operator=(const Hearing&) = delete;
    ~Hearing() { setStoreListener(nullptr); }

    bool storeWaits(bool isForUser) override {
        const auto now = Clock::now();
        unpainted += now - m_last > Milliseconds(100) ? now - m_last : Clock::duration();
        m_last = now;
        wasUserAsked = wasUserAsked || isForUser;
        return now - m_start < m_patience;
    }
    void storeAnswered(StoreOperation operation, StoreResult result) override {
        results.emplace_back(operation, result);
    }

    Clock::duration time() const { return Clock::now() - m_start; }

    std::vector<std::pair<StoreOperation, StoreResult>> results;
    bool wasUserAsked = false;
    Clock::duration unpainted{}; ///< in which a window could not have been painted ten times a second

private:
    Milliseconds m_patience;
    Clock::time_point m_start = Clock::now();
    Clock::time_point m_last = Clock::now();
};

} // namespace xbr::host::test
