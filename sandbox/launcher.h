#pragma once

#include <string>
#include <vector>

namespace sandbox {

// Runs a program (found in PATH when its name has no '/') without a shell and waits for it. Returns its exit
// code, or 128 plus the signal that ended it. Throws std::system_error when it cannot be started.
int runProgram(const std::vector<std::string>& words);

// `name` in the folder of this program's own file; empty when there is no such executable.
std::string findBeside(const std::string& name);

} // namespace sandbox
