#include "host/app/settings/componentproperties.h"

#include "host/app/settings/configurationfile.h"

namespace xbr::host {

std::vector<ComponentProperty> configuredProperties(std::string_view module, std::string_view className) {
    Settings settings;
    if (className != "FeedElement" ||
        readConfiguration(configurationPath(), module, settings) != ConfigurationResult::kRead) {
        return {};
    }
    const std::string address = valueOf(settings, "FeedURL");
    return isWebAddress(address) ? std::vector<ComponentProperty>{{"url", address}}
                                 : std::vector<ComponentProperty>{};
}

} // namespace xbr::host
