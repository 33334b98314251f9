#pragma once

#include <string>

namespace xbr::host {

/// Remembers, in plain words, that something could not be written or copied for a module; `error` is a number
/// of <cerrno>, 0 when there is none. Only the first problem is kept until `takeFileProblem` takes it: the
/// others follow from it.
void noteFileProblem(const std::string& what, int error);

} // namespace xbr::host
