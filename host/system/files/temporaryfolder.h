#pragma once

#include <string>

namespace xbr::host {

/// The private temporary folder of this process, made on first use; its path without a trailing slash, empty
/// when none can be made. Only its owner may enter it. It goes with the process, through exit().
const std::string& temporaryFolder();

} // namespace xbr::host
