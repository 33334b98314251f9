#pragma once

#include "framework/abi/hostclasses.h"
#include "framework/support/objects/object.h"
#include "host/app/settings/configurationfile.h"
#include "host/gui/hostgui.h"

#include <memory>
#include <string>
#include <vector>

namespace xbr::host {

/// What came of the last time that a module asked for its settings. Modules are silent about settings that
/// are missing; the host has to tell the user.
struct ConfigurationReport {
    bool wasAsked = false;
    ConfigurationResult result = ConfigurationResult::kAbsent;
    std::string path;
    std::string id;    ///< name of the section
    std::string title; ///< for people
    std::string serverUrl;
    std::vector<std::string> missingKeys; ///< keys that a sign-in needs
    std::vector<std::string> wrongKeys;   ///< keys whose value is no address of the kind that is needed
    std::string callbackUrl;
    bool isUnencrypted = false; ///< the server is another computer, reached with plain http

    bool isComplete() const {
        return result == ConfigurationResult::kRead && missingKeys.empty() && wrongKeys.empty() &&
               !isUnencrypted;
    }
};

/// Reads the settings of a module from the user's configuration file.
class ConfigurationStore final : public Object<IConfigurationStore> {
public:
    explicit ConfigurationStore(std::shared_ptr<ConfigurationReport> report) : m_report(std::move(report)) {}

    Result load(IAttributes* out, Text id, Text title, std::int32_t profile,
                std::int32_t mode) noexcept override;

private:
    std::shared_ptr<ConfigurationReport> m_report;
};

/// What the user's configuration file says for the components of a panel, from the section of their module:
/// "FeedURL" is the "url" of a "FeedElement". Addresses of the web only; without one, or with another, there
/// are no news.
std::vector<ComponentProperty> configuredProperties(std::string_view module, std::string_view className);

} // namespace xbr::host
