#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace xbr::host {

/// Keys and values of one section, in the order of the file.
using Settings = std::vector<std::pair<std::string, std::string>>;

enum class ConfigurationResult : std::uint8_t {
    kRead,
    kAbsent,     ///< there is no such file, or no such section in it
    kUnreadable, ///< the file cannot be read, is over 1 MiB or is not UTF-8
};

/// The file of the services' settings: the environment variable XBRHOST_CONFIG, or "xbrhost/services.ini"
/// below $XDG_CONFIG_HOME (~/.config when that is not set).
std::string configurationPath();

/// Reads a section of an INI file. Values are literal: everything after the first "=" without the white space
/// at its ends; there are no quotes, escapes or comments behind a value. Lines that begin with ";" or "#" are
/// comments, lines without "=" are ignored. Names of sections and keys are compared exactly; of a key that
/// repeats the last value counts.
ConfigurationResult readConfiguration(const std::string& path, std::string_view section, Settings& settings);

/// The value of a key; empty when there is none.
std::string valueOf(const Settings& settings, std::string_view key);

} // namespace xbr::host
