#pragma once

#include <string>
#include <vector>

namespace xbr::host {

/// The libraries to load as modules, by the first of these that names any: the environment variable
/// XBRHOST_MODULE_PATH (files and folders, separated by ":"), the library beside a fresh build
/// ("<program>/../lib/libbrindlex.so"), the installed ones ("<program>/../lib/xbrhost/modules").
///
/// What the environment names is answered whether or not it is there, so that the user hears of a wrong name.
std::vector<std::string> findModules(const std::string& programFolder);

} // namespace xbr::host
