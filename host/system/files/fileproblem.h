#pragma once

#include "host/base/problem.h"

#include <string>

namespace xbr::host {

/// Tells the host program of something that could not be written or copied for a module. `what` says it in
/// plain words; only those of the first problem are kept until `takeFileProblem` takes them: the others
/// follow from it.
void noteFileProblem(const std::string& what, const Problem& problem);

} // namespace xbr::host
