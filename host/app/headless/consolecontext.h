#pragma once

#include "host/app/headless/output.h"
#include "host/app/process/callbackserver.h"
#include "host/app/process/interruption.h"
#include "host/app/session/activity.h"
#include "host/app/settings/configurationstore.h"

#include <memory>

namespace xbr::host {

/// What the console classes share with the commands. Outlives every object that a module makes.
struct ConsoleContext {
    explicit ConsoleContext(std::unique_ptr<Output> front)
        : output(std::move(front)),
          configuration(std::make_shared<ConfigurationReport>()) {}

    std::unique_ptr<Output> output;
    Interruption interruption;
    CallbackServer callbacks;
    Activity activity;
    std::shared_ptr<ConfigurationReport> configuration;
    bool hadStoreProblem = false; ///< a sign-in could not be stored or removed
};

} // namespace xbr::host
