#pragma once

#include "host/app/settings/configurationstore.h"

#include <QString>

#include <string>

namespace xbr::host {

/// What to tell the user about settings that are missing, wrong or cannot be read.
QString describeConfiguration(const ConfigurationReport& report);

/// A line of the program's core as a sentence: with a capital letter and a full stop.
QString sentence(const std::string& line);

} // namespace xbr::host
