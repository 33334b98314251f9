#pragma once

#include "host/gui/hostcomponents.h"

namespace xbr::host {

/// What the user's configuration file says for the components of a panel, from the section of their module:
/// "FeedURL" is the "url" of a "FeedElement". Addresses of the web only; without one, or with another, there
/// are no news.
std::vector<ComponentProperty> configuredProperties(std::string_view module, std::string_view className);

} // namespace xbr::host
