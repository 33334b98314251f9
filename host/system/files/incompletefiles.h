#pragma once

#include <string>

namespace xbr::host {

/// Files that were to be written or copied for a module and did not come about whole. Modules go on as if
/// they had; a package refuses a folder that holds one, so that nothing incomplete is ever sent. Main thread.
void noteIncompleteFile(const std::string& path);

/// The file was written anew, or is gone. For a folder: all that it held.
void forgetIncompleteFiles(const std::string& path);

/// A file of that kind somewhere in a folder; empty when there is none.
std::string incompleteFileIn(const std::string& folder);

} // namespace xbr::host
