#pragma once

#include "host/base/problem.h"

#include <functional>
#include <string>

namespace xbr::host {

/// Tells the host program of something that could not be written or copied for a module. `what` says it in
/// plain words; only those of the first problem are kept until `takeFileProblem` takes them: the others
/// follow from it.
void noteFileProblem(const std::string& what, const Problem& problem);

/// For front ends: hears of everything that modules could not read, write or copy, from within their calls;
/// an empty function ends it. Main thread.
[[gnu::visibility("default")]] void setFileProblemListener(std::function<void(const Problem&)> hears);

/// For front ends: the first thing since the last call that modules could not write or copy, in plain words
/// that name the system's reason ("'/music/a.wav' cannot be copied: No space left on device"); empty when
/// there was none. Modules are silent about it: a front end asks when something that a module prepared did
/// not come about. Main thread.
[[gnu::visibility("default")]] std::string takeFileProblem();

} // namespace xbr::host
