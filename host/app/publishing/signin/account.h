#pragma once

#include "host/app/publishing/verdict/verdict.h"
#include "host/app/settings/configurationstore.h"
#include "host/security/hostsecurity.h"

#include <optional>
#include <string>

namespace xbr::host {

/// What is known of a sign-in when nothing moves any more.
struct SignInFacts {
    bool isAuthorized = false;
    std::string account; ///< may be empty
    ConfigurationReport settings;
    Problem problem;                           ///< what went wrong with a request meanwhile
    StoreResult found = StoreResult::kNothing; ///< whether one was stored
    std::optional<StoreResult> kept;           ///< whether the new one was stored; none: there is no new one
    bool wasUserAsked = false;                 ///< in the browser
    bool isAnswerUnusable = false; ///< the service said yes, and the panel could do nothing with it
    bool isCancelled = false;
    bool isForUpload = false;  ///< songs wait for it
    std::string wantedAccount; ///< they go to this one only; empty for any
};

Verdict judge(const SignInFacts& facts);

/// Of a sign-out. `wasKept`: something may be stored.
Verdict judgeSignOut(StoreResult removed, bool wasKept);

/// Why a text is no link with which the browser comes back: a sentence; empty when it is one.
std::string problemOfLinkBack(const std::string& link, const ConfigurationReport& settings);

} // namespace xbr::host
