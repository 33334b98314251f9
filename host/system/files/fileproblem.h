#pragma once

#include "host/base/problem.h"

#include <functional>
#include <string>

namespace xbr::host {

/// For front ends: hears of everything that modules could not read, write or copy, from within their calls;
/// an empty function ends it. Modules are silent about it. Main thread.
[[gnu::visibility("default")]] void setFileProblemListener(std::function<void(const Problem&)> hears);

/// Tells the host program of something that could not be read, written or copied for a module.
void noteFileProblem(const Problem& problem);

/// A file that was to be written or copied for a module did not come about whole. Modules go on as if it
/// had; a package refuses a folder that holds one, so that nothing incomplete is ever sent. Main thread.
void noteIncompleteFile(const std::string& path);

/// The file was written anew, or is gone. For a folder: all that it held.
void forgetIncompleteFiles(const std::string& path);

/// A file of that kind somewhere in a folder; empty when there is none.
std::string incompleteFileIn(const std::string& folder);

} // namespace xbr::host
